#include "platform/posix/ProgramFolder.h"

#include <unistd.h>

#include <cstdio>

#include "core/Path.h"
#include "platform/posix/UserFolders.h"

namespace orlo {
namespace {

constexpr int kDeepestFolder = 16;  // links can lead a walk in circles
constexpr std::size_t kLongestPath = 1024 * 1024;

bool CanWriteIn(FileSystem& files, const std::string& folder) {
    return !folder.empty() && files.FolderExists(folder) && access(folder.c_str(), W_OK | X_OK) == 0;
}

bool CopyFolder(FileSystem& files, const std::string& from, const std::string& to, int depth) {
    if (depth > kDeepestFolder || !files.CreateFolders(to)) return false;
    for (const FolderEntry& entry : files.ListFolder(from)) {
        const std::string source = JoinPath(from, entry.name);
        const std::string target = JoinPath(to, entry.name);
        const bool copied =
            entry.isFolder ? CopyFolder(files, source, target, depth + 1) : files.CopyFile(source, target);
        if (!copied) return false;
    }
    return true;
}

// A copy that is cut short stays under another name, where the next start completes it.
bool FillUserFolder(FileSystem& files, const std::vector<std::string>& shareFolders,
                    const std::string& userFolder) {
    for (const std::string& share : shareFolders) {
        if (!files.FolderExists(share)) continue;
        const std::string partial = userFolder + ".new";
        return CopyFolder(files, share, partial, 0) && std::rename(partial.c_str(), userFolder.c_str()) == 0;
    }
    return files.CreateFolders(userFolder);
}

}  // namespace

std::string ExecutablePath() {
    for (std::string buffer(256, '\0'); buffer.size() <= kLongestPath; buffer.resize(buffer.size() * 2)) {
        const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size());
        if (length <= 0) return {};
        if (static_cast<std::size_t>(length) < buffer.size())
            return buffer.substr(0, static_cast<std::size_t>(length));
    }
    return {};
}

std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::vector<std::string>& shareFolders, const std::string& userFolder) {
    std::string own = ParentFolder(executablePath);
    if (CanWriteIn(files, own)) return own;
    const std::string folder(WithoutTrailingSeparator(userFolder));
    if (folder.empty()) return {};
    if (files.FolderExists(folder) || FillUserFolder(files, shareFolders, folder)) return folder;
    return {};
}

std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::vector<std::string>& shareFolders) {
    return FindProgramFolder(files, executablePath, shareFolders, UserDataFolder());
}

}  // namespace orlo
