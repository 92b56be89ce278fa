#include "platform/windows/WindowsHandle.h"

#include <algorithm>

#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"

namespace orlo {
namespace {

constexpr std::size_t kLargestTransfer = std::size_t{1} << 30;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// A virus scanner or an indexer can hold a new file for a moment.
constexpr int kHeldTries = 6;
constexpr DWORD kHeldPause = 20;  // milliseconds

DWORD AccessFor(OpenFor purpose) {
    return purpose == OpenFor::Reading ? GENERIC_READ : GENERIC_WRITE;
}

DWORD DispositionFor(OpenFor purpose) {
    switch (purpose) {
        case OpenFor::Making:
            return CREATE_NEW;
        case OpenFor::Truncating:
            return OPEN_ALWAYS;
        case OpenFor::Reading:
        case OpenFor::Writing:
            break;
    }
    return OPEN_EXISTING;
}

// An administrator might write in spite of the attribute; that is refused.
bool IsReadOnly(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION facts{};
    return GetFileInformationByHandle(file, &facts) == 0 ||
           (facts.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
}

// Another program has the file open and doesn't share it: not by the error of the step that failed, which is
// that of a missing right too.
bool IsHeldAt(const std::wstring& systemPath, DWORD access) {
    const HANDLE opened = CreateFileW(systemPath.c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(opened);
    return false;
}

// Does the step, again and again while it fails because a file is held.
template <typename Step, typename Held>
bool DoUnlessHeld(Step step, Held held) {
    for (int i = 0;; ++i) {
        if (step()) return true;
        if (i == kHeldTries || !held()) return false;
        Sleep(kHeldPause);
    }
}

// A replaced file hands its permissions and attributes on, where the disk can do that.
bool RenameOnce(const std::wstring& from, const std::wstring& to) {
    constexpr DWORD kRules = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    return ReplaceFileW(to.c_str(), from.c_str(), nullptr, kRules, nullptr, nullptr) != 0 ||
           MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

}  // namespace

WindowsHandle& WindowsHandle::operator=(WindowsHandle&& other) noexcept {
    if (this != &other) {
        Close();
        handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
}

bool WindowsHandle::Close() {
    return !IsOpen() || CloseHandle(std::exchange(handle_, nullptr)) != 0;
}

bool WindowsHandle::Rename(const std::string& from, const std::string& to) {
    const std::wstring source = SystemPath(from);
    const std::wstring target = SystemPath(to);
    if (source.empty() || target.empty()) return false;
    // Asked before each try too: one that fails can leave files of the system's own in the folder.
    const auto held = [&] { return IsHeldAt(source, DELETE) || IsHeldAt(target, DELETE); };
    return DoUnlessHeld([&] { return !held() && RenameOnce(source, target); }, held);
}

bool WindowsHandle::Remove(const std::string& path) {
    const std::wstring systemPath = SystemPath(path);
    if (systemPath.empty()) return false;
    return DoUnlessHeld([&] { return DeleteFileW(systemPath.c_str()) != 0; },
                        [&] { return IsHeldAt(systemPath, DELETE); });
}

bool IsHeld(const std::string& path) {
    const std::wstring systemPath = SystemPath(path);
    return !systemPath.empty() && IsHeldAt(systemPath, DELETE | GENERIC_WRITE);
}

WindowsHandle OpenOnDisk(const std::string& path, OpenFor purpose) {
    const std::wstring systemPath = SystemPath(path);
    if (systemPath.empty()) return {};
    HANDLE opened = INVALID_HANDLE_VALUE;
    const auto open = [&] {
        opened = CreateFileW(systemPath.c_str(), AccessFor(purpose), kShareAll, nullptr,
                             DispositionFor(purpose), FILE_ATTRIBUTE_NORMAL, nullptr);
        return opened != INVALID_HANDLE_VALUE;
    };
    if (!DoUnlessHeld(open, [] { return GetLastError() == ERROR_SHARING_VIOLATION; })) return {};
    WindowsHandle file(opened);
    if (GetFileType(opened) != FILE_TYPE_DISK) return {};
    if (purpose != OpenFor::Reading && IsReadOnly(opened)) return {};
    if (purpose == OpenFor::Truncating && !SetSize(file, 0)) return {};
    return file;
}

bool WriteAll(const WindowsHandle& file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), kLargestTransfer));
        if (WriteFile(file.Value(), bytes.data(), count, &written, nullptr) == 0 || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

std::ptrdiff_t ReadSome(const WindowsHandle& file, std::span<char> buffer) {
    DWORD read = 0;
    const auto count = static_cast<DWORD>(std::min(buffer.size(), kLargestTransfer));
    if (ReadFile(file.Value(), buffer.data(), count, &read, nullptr) == 0) return -1;
    return static_cast<std::ptrdiff_t>(read);
}

std::optional<std::uint64_t> SizeOf(const WindowsHandle& file) {
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file.Value(), &size) == 0) return std::nullopt;
    return static_cast<std::uint64_t>(size.QuadPart);
}

bool WriteAllAt(const WindowsHandle& file, std::uint64_t place, std::string_view bytes) {
    LARGE_INTEGER distance{};
    distance.QuadPart = static_cast<LONGLONG>(place);
    return SetFilePointerEx(file.Value(), distance, nullptr, FILE_BEGIN) != 0 && WriteAll(file, bytes);
}

bool SetSize(const WindowsHandle& file, std::uint64_t size) {
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
    return SetFileInformationByHandle(file.Value(), FileEndOfFileInfo, &end, sizeof end) != 0;
}

// This system's disks set room aside when a file's end moves.
bool TakeRoom(const WindowsHandle& file, std::uint64_t, std::uint64_t to) {
    return SetSize(file, to);
}

std::string FinalPath(const WindowsHandle& file) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetFinalPathNameByHandleW(file.Value(), path.data(),
                                                       static_cast<DWORD>(path.size()), VOLUME_NAME_DOS);
        const bool fits = length < path.size();
        path.resize(length);
        if (length == 0 || fits) return PlainPath(path);
    }
}

}  // namespace orlo
