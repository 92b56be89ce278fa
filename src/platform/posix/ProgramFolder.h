#pragma once

#include <string>
#include <vector>

#include "services/FileSystem.h"

namespace orlo {

// Full path of the running program; empty where the system doesn't tell.
std::string ExecutablePath();

// The folder that holds the rule files, the cache and the logs: the executable's own where the user may write
// there, else `userFolder`. One that does not exist yet is made and filled with a copy of the first of
// `shareFolders` that exists; it appears only when the copy is complete. Empty when there is neither.
std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::vector<std::string>& shareFolders, const std::string& userFolder);

// The same with the user's data folder.
std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::vector<std::string>& shareFolders);

}  // namespace orlo
