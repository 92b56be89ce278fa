#include "platform/posix/PosixOutput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/common/OutputFiles.h"
#include "platform/posix/PosixHandle.h"
#include "platform/posix/PosixNames.h"

namespace orlo {
namespace {

constexpr mode_t kPermissions = 07777;
constexpr mode_t kAnyoneWrites = 0222;
constexpr int kMostNames = 1000;

std::optional<struct stat> FactsOfTarget(const std::string& path) {
    struct stat facts {};
    if (stat(path.c_str(), &facts) != 0) return std::nullopt;
    return facts;
}

// A file that nobody may write is read-only for root too, who could write it.
bool IsReadOnly(const std::string& path, const struct stat& facts) {
    return (facts.st_mode & kAnyoneWrites) == 0 || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
}

// Gives a new file the owner and the permissions of the one that it is to replace. Only root can give a file
// away; otherwise the new file stays the user's own.
bool TakeOver(const PosixHandle& file, const struct stat& old) {
    [[maybe_unused]] const int group = fchown(file.Descriptor(), static_cast<uid_t>(-1), old.st_gid);
    [[maybe_unused]] const int owner = fchown(file.Descriptor(), old.st_uid, static_cast<gid_t>(-1));
    return fchmod(file.Descriptor(), old.st_mode & kPermissions) == 0;
}

// A new file in the folder under a hidden name that no reader takes for the target.
std::unique_ptr<OutputFile> OpenBeside(const std::string& target, const std::optional<struct stat>& old,
                                       mode_t newMode) {
    const std::string folder = ParentFolder(target);
    const mode_t mode = old ? static_cast<mode_t>(S_IRUSR | S_IWUSR) : newMode;
    for (int i = 0; i < kMostNames; ++i) {
        std::string temporary = JoinPath(folder, Concat(".orlo-", getpid(), "-", i, ".new"));
        PosixHandle file = OpenRegular(temporary, O_WRONLY | O_CREAT | O_EXCL, mode);
        if (!file.IsOpen()) {
            if (errno == EEXIST) continue;
            return nullptr;
        }
        if (old && !TakeOver(file, *old)) {
            unlink(temporary.c_str());
            return nullptr;
        }
        return std::make_unique<BesideFile<PosixHandle>>(std::move(temporary), target, std::move(file));
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<OutputFile> OpenReplacing(const std::string& path, mode_t newMode) {
    if (!IsUsablePath(path)) return nullptr;
    const std::string target = FollowLinks(path);
    if (target.empty() || FileName(target).empty()) return nullptr;
    const auto old = FactsOfTarget(target);
    if (!old && errno != ENOENT) return nullptr;
    if (old && (!S_ISREG(old->st_mode) || IsReadOnly(target, *old))) return nullptr;
    if (auto file = OpenBeside(target, old, newMode)) return file;
    if (!old) return nullptr;
    PosixHandle file = OpenRegular(target, O_WRONLY);
    if (!file.IsOpen()) return nullptr;
    return std::make_unique<OverwrittenFile<PosixHandle>>(std::move(file));
}

std::unique_ptr<OutputFile> OpenInPlace(const std::string& path) {
    if (!IsUsablePath(path)) return nullptr;
    const auto old = FactsOfTarget(path);
    if (old && IsReadOnly(path, *old)) return nullptr;
    PosixHandle file = OpenRegular(path, O_WRONLY | O_CREAT, 0666);
    if (!file.IsOpen() || ftruncate(file.Descriptor(), 0) != 0) return nullptr;
    return std::make_unique<InPlaceFile<PosixHandle>>(std::move(file));
}

bool WritePatches(const std::string& path, std::span<const FilePatch> patches) {
    if (!IsUsablePath(path)) return false;
    const auto facts = FactsOfTarget(path);
    if (!facts || IsReadOnly(path, *facts)) return false;
    PosixHandle file = OpenRegular(path, O_WRONLY);
    return file.IsOpen() && PatchBytes(file, patches) && file.Close();
}

std::unique_ptr<OutputFile> OpenNew(const std::string& path) {
    if (!IsUsablePath(path)) return nullptr;
    PosixHandle file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
    if (!file.IsOpen()) return nullptr;
    return std::make_unique<InPlaceFile<PosixHandle>>(std::move(file));
}

}  // namespace orlo
