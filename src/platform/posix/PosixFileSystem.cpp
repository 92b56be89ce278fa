#include "platform/posix/PosixFileSystem.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>

#include "core/Path.h"
#include "platform/common/OutputFiles.h"
#include "platform/posix/PosixHandle.h"
#include "platform/posix/PosixNames.h"
#include "platform/posix/PosixOutput.h"
#include "platform/posix/UserFolders.h"
#include "platform/posix/WineDrives.h"

namespace orlo {
namespace {

constexpr mode_t kNewFile = 0666;
constexpr mode_t kNewFolder = 0777;

class PosixInput : public InputFile {
  public:
    PosixInput(PosixHandle file, std::uint64_t size) : file_(std::move(file)), size_(size) {}

    std::size_t Read(std::span<char> buffer) override {
        const ssize_t count = ReadSome(file_, buffer);
        return count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    std::uint64_t Size() const override { return size_; }

  private:
    PosixHandle file_;
    std::uint64_t size_;
};

std::optional<struct stat> FactsOf(const std::string& path) {
    struct stat facts {};
    if (!IsUsablePath(path) || stat(ResolveNames(path).c_str(), &facts) != 0) return std::nullopt;
    return facts;
}

// The permissions of a copy: the source's, and the owner may write, so that the next copy can replace it.
mode_t CopyMode(const struct stat& source) {
    return (source.st_mode & 0777) | S_IWUSR;
}

}  // namespace

std::string PosixFileSystem::Resolve(const std::string& path) {
    return ResolveNames(path);
}

std::string PosixFileSystem::FullPath(const std::string& path) {
    if (!path.empty() && path.front() == '/') return path;
    std::array<char, PATH_MAX> folder{};
    if (getcwd(folder.data(), folder.size()) == nullptr) return path;
    return JoinPath(folder.data(), path);
}

std::string PosixFileSystem::FromDrivePath(const std::string& path) {
    return FromWineDrive(*this, WinePrefixFolder(), path);
}

bool PosixFileSystem::FileExists(const std::string& path) {
    const auto facts = FactsOf(path);
    return facts && !S_ISDIR(facts->st_mode);
}

bool PosixFileSystem::FolderExists(const std::string& path) {
    const auto facts = FactsOf(path);
    return facts && S_ISDIR(facts->st_mode);
}

std::optional<FileStamp> PosixFileSystem::Stamp(const std::string& path) {
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    const auto facts = FactsOf(path);
    if (!facts || S_ISDIR(facts->st_mode)) return std::nullopt;
    return FileStamp{static_cast<std::uint64_t>(facts->st_size),
                     facts->st_mtim.tv_sec * kNanoseconds + facts->st_mtim.tv_nsec};
}

std::optional<std::uint64_t> PosixFileSystem::FileSize(const std::string& path) {
    const auto facts = FactsOf(path);
    if (!facts || S_ISDIR(facts->st_mode)) return std::nullopt;
    return static_cast<std::uint64_t>(facts->st_size);
}

std::unique_ptr<InputFile> PosixFileSystem::OpenForReading(const std::string& path) {
    if (!IsUsablePath(path)) return nullptr;
    PosixHandle file = OpenRegular(ResolveNames(path), O_RDONLY);
    struct stat facts {};
    if (!file.IsOpen() || fstat(file.Descriptor(), &facts) != 0) return nullptr;
    return std::make_unique<PosixInput>(std::move(file), static_cast<std::uint64_t>(facts.st_size));
}

std::unique_ptr<OutputFile> PosixFileSystem::CreateReplacing(const std::string& path) {
    return OpenReplacing(ResolveNames(path), kNewFile);
}

std::unique_ptr<OutputFile> PosixFileSystem::CreateInPlace(const std::string& path) {
    return OpenInPlace(ResolveNames(path));
}

std::unique_ptr<OutputFile> PosixFileSystem::CreateNew(const std::string& path) {
    DeleteFile(path);
    return OpenNew(path);
}

bool PosixFileSystem::PatchFile(const std::string& path, std::span<const FilePatch> patches) {
    return WritePatches(ResolveNames(path), patches);
}

bool PosixFileSystem::CopyFile(const std::string& from, const std::string& to) {
    if (!IsUsablePath(from)) return false;
    const PosixHandle source = OpenRegular(ResolveNames(from), O_RDONLY);
    struct stat facts {};
    if (!source.IsOpen() || fstat(source.Descriptor(), &facts) != 0) return false;
    const auto target = OpenReplacing(ResolveNames(to), CopyMode(facts));
    return target && CopyBytes(source, *target) && target->Commit();
}

bool PosixFileSystem::RenameFile(const std::string& from, const std::string& to) {
    if (!FileExists(from) || !IsUsablePath(to)) return false;
    const std::string target = JoinPath(ResolveNames(ParentFolder(to)), FileName(to));
    return rename(ResolveNames(from).c_str(), target.c_str()) == 0;
}

bool PosixFileSystem::RenameFolder(const std::string& from, const std::string& to) {
    if (!FolderExists(from) || FileExists(to) || FolderExists(to) || !IsUsablePath(to)) return false;
    const std::string target = JoinPath(ResolveNames(ParentFolder(to)), FileName(to));
    return rename(ResolveNames(from).c_str(), target.c_str()) == 0;
}

bool PosixFileSystem::DeleteEmptyFolder(const std::string& path) {
    return IsUsablePath(path) && rmdir(ResolveNames(path).c_str()) == 0;
}

bool PosixFileSystem::DeleteFile(const std::string& path) {
    // unlink refuses folders.
    return IsUsablePath(path) && unlink(ResolveNames(path).c_str()) == 0;
}

bool PosixFileSystem::CreateFolders(const std::string& path) {
    return CreateWith(path, kNewFolder);
}

bool PosixFileSystem::CreatePrivateFolders(const std::string& path) {
    return CreateWith(path, S_IRWXU);
}

bool PosixFileSystem::CreateWith(const std::string& path, mode_t mode) {
    if (!IsUsablePath(path)) return false;
    return MakeFolders(
        *this, ResolveNames(path), [mode](const std::string& each) { return mkdir(each.c_str(), mode) == 0; },
        [](const std::string& each) { rmdir(each.c_str()); });
}

bool PosixFileSystem::IsLink(const std::string& path) {
    struct stat facts {};
    return IsUsablePath(path) && lstat(ResolveNames(path).c_str(), &facts) == 0 && S_ISLNK(facts.st_mode);
}

std::vector<FolderEntry> PosixFileSystem::ListFolder(const std::string& path) {
    if (!IsUsablePath(path)) return {};
    return ListNames(ResolveNames(path));
}

}  // namespace orlo
