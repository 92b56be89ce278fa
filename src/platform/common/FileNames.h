#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "services/FileSystem.h"

namespace orlo {

// A file name in the form in which names are compared and sorted. A UTF-8 name counts as the code page 1252
// text that it shows, so that a name from a file of the simulator finds its file on a UTF-8 disk; a name with
// other characters is folded in its ASCII letters only.
std::string FoldedFileName(std::string_view name);

// By their folded names, and equal ones in byte order.
void SortByName(std::vector<FolderEntry>& entries);

// See FileSystem::CreateFolders: makes what is missing of `path` by `make` and takes it back by `remove` when
// that fails half-way. `path` is resolved.
bool MakeFolders(FileSystem& files, const std::string& path,
                 const std::function<bool(const std::string&)>& make,
                 const std::function<void(const std::string&)>& remove);

}  // namespace orlo
