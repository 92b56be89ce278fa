#pragma once

#include "services/ProcessService.h"

namespace orlo {

// Runs a program of Windows, which its first bytes tell, through the Wine on PATH, and any other directly. A
// tool has a process group of its own and the null device as its standard streams.
class PosixProcesses : public ProcessService {
  public:
    bool CanRun(const std::string& program) override;
    // Lets the owner execute a program of this system that nobody may.
    std::unique_ptr<RunningTool> Start(const ToolStart& start) override;
    std::string TemporaryFolder() override;
};

}  // namespace orlo
