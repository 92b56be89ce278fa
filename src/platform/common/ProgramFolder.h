#pragma once

#include <string>

#include "services/FileSystem.h"

namespace orlo {

// The folder that holds the rule files, the cache and the logs.
// A program that is installed, with a folder "share/orlo" beside its executable's folder, has `userFolder`,
// even where it might write to its own: root can write to the folder of all programs. Any other, a portable
// one or one in a build's folder, has its executable's own folder where the user may write there, else
// `userFolder`. A `userFolder` that does not exist yet is made and filled with a copy of "share/orlo", or, in
// a checkout, of "share", where that holds the rule files; it appears only when the copy is complete. In one
// that exists the pages of "Help" that differ from those there are replaced; nothing else in it is touched.
// Empty when there is no folder.
std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::string& userFolder);

// What the system has to offer for it.
bool CanWriteIn(const std::string& folder);
bool RenameFolder(const std::string& from, const std::string& to);

}  // namespace orlo
