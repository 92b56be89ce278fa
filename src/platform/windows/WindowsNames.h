#pragma once

#include <string>
#include <vector>

#include "services/FileSystem.h"

namespace orlo {

// See FileSystem::Resolve. The system itself finds names without regard to case; this gives their spelling,
// short names in their long form. A component that is missing ends the look-up.
std::string ResolveNames(const std::string& path);

// See FileSystem::ListFolder. Links to folders are folders.
std::vector<FolderEntry> ListNames(const std::string& folder);

}  // namespace orlo
