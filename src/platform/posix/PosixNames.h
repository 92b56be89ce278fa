#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/common/FileNames.h"
#include "services/FileSystem.h"

namespace orlo {

// Whether the path isn't empty and holds no zero byte, at which the system would cut it.
bool IsUsablePath(std::string_view path);

// See FileSystem::Resolve. A component that is missing, or whose folder can't be read, ends the look-up; of
// several names that differ in case only, the first in byte order is taken.
std::string ResolveNames(const std::string& path);

// The path at the end of the links at `path`, which need not exist; empty when they lead in a circle.
std::string FollowLinks(std::string path);

// See FileSystem::ListFolder. Links to folders are folders.
std::vector<FolderEntry> ListNames(const std::string& folder);

}  // namespace orlo
