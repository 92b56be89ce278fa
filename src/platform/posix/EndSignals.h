#pragma once

#include <signal.h>

#include <array>

#include "platform/Platform.h"
#include "platform/posix/PosixHandle.h"

namespace orlo {

// The signals by which the system and the terminal end a program. The first is noted, and a byte in a pipe
// wakes what waits.
class EndSignals : public EndWatch {
  public:
    EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    ~EndSignals() override;

    std::optional<int> ExitStatus() const override;
    std::streambuf& Input() override { return input_; }
    int Descriptor() const override { return woken_.Descriptor(); }

    // Whether one was noted.
    static bool Noted();

  private:
    class WatchedInput : public std::streambuf {
      public:
        explicit WatchedInput(const PosixHandle& woken) : woken_(woken) {}

      private:
        int_type underflow() override;

        const PosixHandle& woken_;
        std::array<char, 4096> buffer_{};
    };

    static constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

    PosixHandle woken_;  // the pipe's end for reading; not open where the system has no more
    PosixHandle wake_;
    std::array<struct sigaction, kSignals.size()> before_{};
    WatchedInput input_{woken_};
};

}  // namespace orlo
