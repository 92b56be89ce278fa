#pragma once

#include "services/ProcessService.h"

namespace orlo {

// A tool that isn't shown has no console and the null device as its standard streams; one that is shown has a
// console of its own.
class WindowsProcesses : public ProcessService {
  public:
    bool CanRun(const std::string&) override { return true; }
    std::unique_ptr<RunningTool> Start(const ToolStart& start) override;
    std::string TemporaryFolder() override;
};

}  // namespace orlo
