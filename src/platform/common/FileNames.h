#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "services/FileSystem.h"

namespace orlo {

// A file name in the form in which names are compared and sorted. A UTF-8 name counts as the code page 1252
// text that it shows, so that a name from a file of the simulator finds its file on a UTF-8 disk; in a name
// with other characters only the ASCII letters are folded.
std::string FoldedFileName(std::string_view name);

// Sorts by FoldedFileName; equal ones by their bytes.
void SortByName(std::vector<FolderEntry>& entries);

// See FileSystem::CreateFolders. Makes the missing folders of `path` with `make`; when one fails, takes back
// those it made with `remove`. `path` is resolved.
bool MakeFolders(FileSystem& files, const std::string& path,
                 const std::function<bool(const std::string&)>& make,
                 const std::function<void(const std::string&)>& remove);

}  // namespace orlo
