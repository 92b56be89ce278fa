#include "platform/common/ProgramFolder.h"

#include "core/Path.h"

namespace orlo {
namespace {

constexpr int kDeepestFolder = 16;  // links can lead a walk in circles

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
        return CopyFolder(files, share, partial, 0) && RenameFolder(partial, userFolder);
    }
    return files.CreateFolders(userFolder);
}

}  // namespace

std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::vector<std::string>& shareFolders, const std::string& userFolder) {
    std::string own = ParentFolder(executablePath);
    if (!own.empty() && files.FolderExists(own) && CanWriteIn(own)) return own;
    const std::string folder(WithoutTrailingSeparator(userFolder));
    if (folder.empty()) return {};
    if (files.FolderExists(folder) || FillUserFolder(files, shareFolders, folder)) return folder;
    return {};
}

std::vector<std::string> ShareFolders(const std::string& executablePath) {
    const std::string share = JoinPath(ParentFolder(ParentFolder(executablePath)), "share");
    return {JoinPath(share, "orlo"), share};
}

}  // namespace orlo
