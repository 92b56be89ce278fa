#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <utility>

#include "platform/posix/InterruptWatch.h"
#include "services/ProcessService.h"

namespace orlo {

// What Wine puts into another process group can be told by these two.
struct WineMark {
    std::string variable;  // of the environment, "NAME=VALUE"; empty for a tool that doesn't run through Wine
    std::string program;   // the name of its file
};

// A child process that leads a process group of its own.
class PosixTool : public RunningTool {
  public:
    PosixTool(pid_t child, WineMark mark) : child_(child), mark_(std::move(mark)) {}
    // The child, when it ends by itself later on, leaves nothing behind.
    ~PosixTool() override;

    bool Wait(int milliseconds) override;
    void End() override;
    std::int32_t ExitCode() const override { return exitCode_.value_or(0); }
    bool Interrupted() const override;

  private:
    bool HasEnded() const;
    void Take(int status);
    void LetGo();

    pid_t child_;  // 0 once it has ended or was let go
    WineMark mark_;
    std::optional<std::int32_t> exitCode_;
    InterruptWatch watch_;
};

}  // namespace orlo
