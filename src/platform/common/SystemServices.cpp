#include "platform/SystemServices.h"

#include "platform/Platform.h"

namespace orlo {

SystemServices::SystemServices(const std::optional<std::string>& settings, const std::string& simulator,
                               std::optional<std::uint64_t> seed)
    : files(MakeFileSystem()),
      userSettings(MakeUserSettings(*files, settings)),
      machineSettings(MakeMachineSettings(*files, simulator)),
      random(seed),
      clock(MakeClock()),
      processes(MakeProcesses()) {}

}  // namespace orlo
