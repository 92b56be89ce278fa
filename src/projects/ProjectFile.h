#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ProjectRecords.h"
#include "core/Session.h"
#include "services/FileSystem.h"

namespace orlo {

// Project files, ".orp"; docs/project-file.md tells the format.

// The entries of a file of version 1.0 or 1.1. Of a file that is cut or lies about its lengths the whole
// entries in front of the fault.
std::vector<ProjectEntry> ParseProject(std::string_view bytes);
// A file of version 1.1. A text of more than 65,535 bytes is cut there.
std::string FormatProject(const std::vector<ProjectEntry>& entries);

// Replaces the entries; a file that can't be read gives none. The version is "1.1" then.
void ReadProject(ProjectState& project, FileSystem& files, const std::string& path);
// False, with the old file whole, where the file can't be written.
bool WriteProject(ProjectState& project, FileSystem& files, const std::string& path);

// The path as this system finds it, for one of a project that another system may have written: drive letters
// are those of Wine, and bytes that are no UTF-8 are code page 1252. A path that leads nowhere stays.
std::string UsablePath(FileSystem& files, const std::string& path);

}  // namespace orlo
