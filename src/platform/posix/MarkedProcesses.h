#pragma once

#include <string>
#include <string_view>

namespace orlo {

// Ends by force each process whose environment has this variable, given as "NAME=VALUE", and whose command
// line names this file. Nothing where the system doesn't show its processes as files.
void EndMarkedProcesses(const std::string& variable, std::string_view file);

}  // namespace orlo
