#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace orlo {

// An outside program to be started, without a shell.
struct ToolStart {
    std::string program;        // full path
    std::string argument;       // its one word, such as "/NP"; empty: none
    std::string workingFolder;  // full path
    bool shown = false;         // with a console window of its own where the system gives one
};

// A tool that was started. Destroyed while it runs, it goes on by itself.
class RunningTool {
  public:
    virtual ~RunningTool() = default;

    // Waits until the tool has ended, but no longer than that. True when it has ended.
    virtual bool Wait(int milliseconds) = 0;
    // Ends the tool and what it started, within a few seconds; Wait then gives true. One that it has to end
    // counts as having an exit code other than 0, as does one that a signal ended.
    virtual void End() = 0;
    // Once Wait has given true.
    virtual std::int32_t ExitCode() const = 0;
    // Whether the user has pressed Ctrl+C in the program's own terminal since the start, or the system has
    // asked the program to end (EndRequest.h). As long as this object lives, Ctrl+C ends no program.
    virtual bool Interrupted() const = 0;
};

// What the program asks of the system to run outside tools.
class ProcessService {
  public:
    virtual ~ProcessService() = default;

    // False for a program of Windows where the system can't run it, for want of Wine.
    virtual bool CanRun(const std::string& program) = 0;
    // Null where it can't be started.
    virtual std::unique_ptr<RunningTool> Start(const ToolStart& start) = 0;
    // The system's temporary folder without a separator at its end; TMPDIR where that is set.
    virtual std::string TemporaryFolder() = 0;
};

}  // namespace orlo
