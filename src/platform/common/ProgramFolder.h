#pragma once

#include <string>

#include "services/FileSystem.h"

namespace orlo {

// The folder that holds the rule files, the scenery cache and the manual. For an installed program, which has
// a folder "share/orlo" beside its executable's folder, it is `userFolder`, even where the executable's
// folder can be written: root can write to the folder of all programs. For any other, portable or in a
// build's folder, it is the executable's folder where the user may write there, else `userFolder`. A missing
// `userFolder` is made as a copy of "share/orlo" or, in a checkout, of "share", where that holds the rule
// files; it appears only when the copy is complete. In an existing one the pages of "Help" that differ from
// those of the share are replaced; nothing else is touched. Empty when there is no folder.
std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::string& userFolder);

// What FindProgramFolder needs of the system, which each system defines.
bool CanWriteIn(const std::string& folder);
bool RenameFolder(const std::string& from, const std::string& to);

}  // namespace orlo
