#include "platform/common/ProgramFolder.h"

#include "core/Path.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::string_view kRuleFile = "ORLO_AC.CFG";
constexpr int kDeepestFolder = 16;  // links can lead a walk in circles

bool IsCopy(FileSystem& files, const std::string& source, const std::string& target) {
    const auto size = files.FileSize(target);
    return size && size == files.FileSize(source) &&
           ReadWholeFile(files, source) == ReadWholeFile(files, target);
}

// Copies everything in `from` over that in `to`; what else is in `to` stays. Stops at the first entry that
// fails and gives false.
bool CopyFolder(FileSystem& files, const std::string& from, const std::string& to, int depth) {
    if (depth > kDeepestFolder || !files.CreateFolders(to)) return false;
    for (const FolderEntry& entry : files.ListFolder(from)) {
        const std::string source = JoinPath(from, entry.name);
        const std::string target = JoinPath(to, entry.name);
        const bool copied = entry.isFolder ? CopyFolder(files, source, target, depth + 1)
                                           : IsCopy(files, source, target) || files.CopyFile(source, target);
        if (!copied) return false;
    }
    return true;
}

// A copy that is cut short stays under another name, where the next start completes it.
bool FillUserFolder(FileSystem& files, const std::string& share, const std::string& userFolder) {
    const std::string partial = userFolder + ".new";
    return CopyFolder(files, share, partial, 0) && RenameFolder(partial, userFolder);
}

// The manual belongs to the program and follows its updates. Where it can't be written, the old one stays.
void RenewHelp(FileSystem& files, const std::string& share, const std::string& userFolder) {
    const std::string help = JoinPath(share, "Help");
    if (files.FolderExists(help)) CopyFolder(files, help, JoinPath(userFolder, "Help"), 0);
}

std::string UserProgramFolder(FileSystem& files, const std::string& share, const std::string& userFolder) {
    if (userFolder.empty()) return {};
    // A folder "share" without the rule files belongs to others and is not copied.
    const bool hasShare = !share.empty() && files.FileExists(JoinPath(share, kRuleFile));
    if (files.FolderExists(userFolder)) {
        if (hasShare) RenewHelp(files, share, userFolder);
        return userFolder;
    }
    const bool made = hasShare ? FillUserFolder(files, share, userFolder) : files.CreateFolders(userFolder);
    return made ? userFolder : std::string();
}

}  // namespace

std::string FindProgramFolder(FileSystem& files, const std::string& executablePath,
                              const std::string& userFolder) {
    const std::string user(WithoutTrailingSeparator(userFolder));
    const std::string own = ParentFolder(executablePath);
    if (own.empty()) return UserProgramFolder(files, {}, user);
    const std::string share = JoinPath(ParentFolder(own), "share");
    const std::string installed = JoinPath(share, "orlo");
    if (files.FolderExists(installed)) return UserProgramFolder(files, installed, user);
    if (files.FolderExists(own) && CanWriteIn(own)) return own;
    return UserProgramFolder(files, share, user);
}

}  // namespace orlo
