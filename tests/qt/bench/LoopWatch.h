#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "forms/ProgressForm.h"

namespace orlo::bench {

// How long the loop of events waits while an operation runs: a timer that wants to fire every 10 ms is late
// by as much as a paint would be.
class LoopWatch : public QObject {
  public:
    explicit LoopWatch(const ProgressForm& progress) : progress_(progress) {
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
    }

    void Start() {
        waits_.clear();
        whole_.start();
        last_.start();
        before_ = Stage();
        timer_.start(kTickMilliseconds);
    }

    void NoteDone() { done_ = whole_.elapsed(); }

    // Prints the time from Start to NoteDone, and until now the longest waits, each with the stages around
    // it.
    void Print(const char* operation) {
        Tick();
        timer_.stop();
        std::printf("%-10s %7lld ms\n", operation, done_);
        std::sort(waits_.begin(), waits_.end(),
                  [](const Wait& a, const Wait& b) { return a.milliseconds > b.milliseconds; });
        for (std::size_t i = 0; i < std::min<std::size_t>(waits_.size(), kWaitsPrinted); ++i) {
            std::printf("    wait %5lld ms at %6lld: %s -> %s\n", waits_[i].milliseconds, waits_[i].end,
                        waits_[i].from.c_str(), waits_[i].to.c_str());
        }
        std::fflush(stdout);
    }

  private:
    static constexpr int kTickMilliseconds = 10;
    static constexpr std::size_t kWaitsPrinted = 3;
    struct Wait {
        long long milliseconds;
        long long end;  // since Start
        std::string from;
        std::string to;
    };

    std::string Stage() const {
        if (!progress_.visible) return "(no progress)";
        return progress_.lblProgress.caption + ' ' + std::to_string(progress_.pbProgress.value) + '/' +
               std::to_string(progress_.pbProgress.maximum);
    }
    void Tick() {
        std::string now = Stage();
        waits_.push_back({last_.restart(), whole_.elapsed(), before_, now});
        before_ = std::move(now);
    }

    const ProgressForm& progress_;
    QTimer timer_;
    QElapsedTimer whole_;
    QElapsedTimer last_;
    long long done_ = 0;
    std::string before_;
    std::vector<Wait> waits_;
};

}  // namespace orlo::bench
