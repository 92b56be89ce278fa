#include "platform/windows/WindowsFileSystem.h"

#include "platform/common/FileNames.h"
#include "platform/common/OutputFiles.h"
#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsNames.h"
#include "platform/windows/WindowsOutput.h"

namespace orlo {
namespace {

class WindowsInput : public InputFile {
  public:
    WindowsInput(WindowsHandle file, std::uint64_t size) : file_(std::move(file)), size_(size) {}

    std::size_t Read(std::span<char> buffer) override {
        const std::ptrdiff_t count = ReadSome(file_, buffer);
        return count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    std::uint64_t Size() const override { return size_; }

  private:
    WindowsHandle file_;
    std::uint64_t size_;
};

struct Facts {
    bool isFolder = false;
    std::uint64_t size = 0;
    std::int64_t time = 0;  // of the last write
};

template <typename Data>
Facts FactsIn(const Data& data) {
    const FILETIME& time = data.ftLastWriteTime;
    return {(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
            (std::uint64_t{data.nFileSizeHigh} << 32) + data.nFileSizeLow,
            static_cast<std::int64_t>((std::uint64_t{time.dwHighDateTime} << 32) + time.dwLowDateTime)};
}

// The facts of what a link leads to.
std::optional<Facts> FactsBehindLink(const std::wstring& systemPath) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE opened = CreateFileW(systemPath.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
    const WindowsHandle file(opened);
    BY_HANDLE_FILE_INFORMATION data{};
    if (GetFileInformationByHandle(opened, &data) == 0) return std::nullopt;
    return FactsIn(data);
}

std::optional<Facts> FactsOf(const std::string& path) {
    const std::wstring systemPath = SystemPath(path);
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (systemPath.empty() || GetFileAttributesExW(systemPath.c_str(), GetFileExInfoStandard, &data) == 0)
        return std::nullopt;
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return FactsBehindLink(systemPath);
    return FactsIn(data);
}

}  // namespace

std::string WindowsFileSystem::Resolve(const std::string& path) {
    return ResolveNames(path);
}

std::string WindowsFileSystem::FullPath(const std::string& path) {
    std::string full = orlo::FullPath(path);
    return full.empty() ? path : full;
}

bool WindowsFileSystem::FileExists(const std::string& path) {
    const auto facts = FactsOf(path);
    return facts && !facts->isFolder;
}

bool WindowsFileSystem::FolderExists(const std::string& path) {
    const auto facts = FactsOf(path);
    return facts && facts->isFolder;
}

std::optional<FileStamp> WindowsFileSystem::Stamp(const std::string& path) {
    const auto facts = FactsOf(path);
    if (!facts || facts->isFolder) return std::nullopt;
    return FileStamp{facts->size, facts->time};
}

std::optional<std::uint64_t> WindowsFileSystem::FileSize(const std::string& path) {
    const auto facts = FactsOf(path);
    if (!facts || facts->isFolder) return std::nullopt;
    return facts->size;
}

std::unique_ptr<InputFile> WindowsFileSystem::OpenForReading(const std::string& path) {
    WindowsHandle file = OpenOnDisk(path, OpenFor::Reading);
    const auto size = file.IsOpen() ? SizeOf(file) : std::nullopt;
    if (!size) return nullptr;
    return std::make_unique<WindowsInput>(std::move(file), *size);
}

std::unique_ptr<OutputFile> WindowsFileSystem::CreateReplacing(const std::string& path) {
    return OpenReplacing(ResolveNames(path));
}

std::unique_ptr<OutputFile> WindowsFileSystem::CreateInPlace(const std::string& path) {
    return OpenInPlace(path);
}

std::unique_ptr<OutputFile> WindowsFileSystem::CreateNew(const std::string& path) {
    DeleteFile(path);
    return OpenNew(path);
}

bool WindowsFileSystem::PatchFile(const std::string& path, std::span<const FilePatch> patches) {
    return WritePatches(path, patches);
}

bool WindowsFileSystem::CopyFile(const std::string& from, const std::string& to) {
    const WindowsHandle source = OpenOnDisk(from, OpenFor::Reading);
    if (!source.IsOpen()) return false;
    const auto target = OpenReplacing(ResolveNames(to));
    return target && CopyBytes(source, *target) && target->Commit();
}

bool WindowsFileSystem::RenameFile(const std::string& from, const std::string& to) {
    const std::wstring source = SystemPath(from);
    const std::wstring target = SystemPath(to);
    return !source.empty() && !target.empty() &&
           MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

bool WindowsFileSystem::RenameFolder(const std::string& from, const std::string& to) {
    const std::wstring source = SystemPath(from);
    const std::wstring target = SystemPath(to);
    return FolderExists(from) && !source.empty() && !target.empty() &&
           MoveFileExW(source.c_str(), target.c_str(), 0) != 0;
}

bool WindowsFileSystem::DeleteEmptyFolder(const std::string& path) {
    const std::wstring systemPath = SystemPath(path);
    return !systemPath.empty() && RemoveDirectoryW(systemPath.c_str()) != 0;
}

bool WindowsFileSystem::DeleteFile(const std::string& path) {
    return WindowsHandle::Remove(path);
}

bool WindowsFileSystem::CreateFolders(const std::string& path) {
    if (SystemPath(path).empty()) return false;
    return MakeFolders(
        *this, path,
        [](const std::string& each) { return CreateDirectoryW(SystemPath(each).c_str(), nullptr) != 0; },
        [](const std::string& each) { RemoveDirectoryW(SystemPath(each).c_str()); });
}

// The folders of a user's own are closed to others here already.
bool WindowsFileSystem::CreatePrivateFolders(const std::string& path) {
    return CreateFolders(path);
}

bool WindowsFileSystem::IsLink(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(SystemPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

bool WindowsFileSystem::IsHeld(const std::string& path) {
    return orlo::IsHeld(path);
}

std::vector<FolderEntry> WindowsFileSystem::ListFolder(const std::string& path) {
    return ListNames(path);
}

}  // namespace orlo
