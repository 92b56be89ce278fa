#pragma once

#include <string>
#include <vector>

#include "services/FileSystem.h"

namespace orlo {

// The folder that holds the rule files, the cache and the logs: the executable's own where the user may write
// there, else `userFolder`. One that does not exist yet is made and filled with a copy of the first of
// `shareFolders` that exists; it appears only when the copy is complete. Empty when there is neither.
std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::vector<std::string>& shareFolders, const std::string& userFolder);

// Where the files of an installation stand that a user gets a copy of: in the folder "share" or "share/orlo"
// beside the one of the executable.
std::vector<std::string> ShareFolders(const std::string& executablePath);

// What the system has to offer for it.
bool CanWriteIn(const std::string& folder);
bool RenameFolder(const std::string& from, const std::string& to);

}  // namespace orlo
