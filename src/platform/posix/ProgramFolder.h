#pragma once

#include <string>

#include "platform/common/ProgramFolder.h"

namespace orlo {

// Full path of the running program; empty where the system doesn't tell.
std::string ExecutablePath();

}  // namespace orlo
