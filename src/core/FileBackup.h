#pragma once

#include <functional>
#include <string>

#include "services/FileSystem.h"

namespace orlo {

// Makes a file safe before it is written; false where it must stay as it is.
using BackUpFile = std::function<bool(const std::string& path)>;

std::string BackupPath(const std::string& path);

// Copies `path` to its name with ".orlo.bak" unless that stands already, so that the backup holds the state
// before the first change. False where a file stands at `path` and has no backup afterwards.
bool BackUpOnce(FileSystem& files, const std::string& path);

}  // namespace orlo
