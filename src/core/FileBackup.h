#pragma once

#include <string>

#include "services/FileSystem.h"

namespace orlo {

std::string BackupPath(const std::string& path);

// Copies `path` to its name with ".orlo.bak" unless that stands already, so that the backup holds the state
// before the first change. False where a file stands at `path` and has no backup afterwards.
bool BackUpOnce(FileSystem& files, const std::string& path);

}  // namespace orlo
