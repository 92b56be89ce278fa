#include "core/FileBackup.h"

#include "core/Application.h"
#include "core/Text.h"

namespace orlo {

std::string BackupPath(const std::string& path) {
    return Concat(path, kBackupSuffix);
}

bool BackUpOnce(FileSystem& files, const std::string& path) {
    const std::string backupPath = BackupPath(path);
    if (files.FileExists(backupPath) || !files.FileExists(path)) return true;
    return files.CopyFile(path, backupPath);
}

}  // namespace orlo
