#include "core/FileBackup.h"

#include "core/Application.h"
#include "core/Text.h"

namespace orlo {

bool BackUpOnce(FileSystem& files, const std::string& path) {
    const std::string backupPath = Concat(path, kBackupSuffix);
    if (files.FileExists(backupPath) || !files.FileExists(path)) return true;
    return files.CopyFile(path, backupPath);
}

}  // namespace orlo
