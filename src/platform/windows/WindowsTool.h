#pragma once

#include <optional>
#include <utility>

#include "platform/windows/WindowsHandle.h"
#include "services/ProcessService.h"

namespace orlo {

// While one lives, Ctrl+C in the program's console ends nothing and is only counted.
class InterruptWatch {
  public:
    InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;
    ~InterruptWatch();

    // Whether Ctrl+C was pressed since this began to watch.
    bool Interrupted() const;

  private:
    long before_;
};

// A process, and the job that holds what it starts; not open where the system refused the job.
class WindowsTool : public RunningTool {
  public:
    WindowsTool(WindowsHandle process, WindowsHandle job)
        : process_(std::move(process)), job_(std::move(job)) {}

    bool Wait(int milliseconds) override;
    void End() override;
    std::int32_t ExitCode() const override { return exitCode_.value_or(0); }
    bool Interrupted() const override;

  private:
    WindowsHandle process_;
    WindowsHandle job_;
    std::optional<std::int32_t> exitCode_;
    InterruptWatch watch_;
};

}  // namespace orlo
