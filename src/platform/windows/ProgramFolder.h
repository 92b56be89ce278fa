#pragma once

#include <string>

#include "platform/common/ProgramFolder.h"

namespace orlo {

// Full path of the running program; empty where the system doesn't tell.
std::string ExecutablePath();

// "Orlo" in the folder of local application data. Not made. Empty where the system knows none.
std::string UserDataFolder();
// "Orlo State\kept" there.
std::string UserKeptFolder();

}  // namespace orlo
