#include "platform/windows/ProgramFolder.h"

#include <memory>

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsHandle.h"
// Behind the system's header, which they need.
#include <objbase.h>
#include <shlobj.h>

namespace orlo {
namespace {

constexpr std::size_t kLongestPath = 64 * 1024;
constexpr std::string_view kOwnName = "Orlo";

// Empty where the system doesn't tell.
std::string LocalDataFolder() {
    PWSTR found = nullptr;
    const HRESULT status = SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &found);
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> folder(found, &CoTaskMemFree);
    return status == S_OK ? PlainPath(folder.get()) : std::string();
}

}  // namespace

std::string ExecutablePath() {
    for (std::wstring buffer(MAX_PATH, L'\0'); buffer.size() <= kLongestPath;
         buffer.resize(buffer.size() * 2)) {
        const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) return {};
        if (length < buffer.size()) return PlainPath(std::wstring_view(buffer).substr(0, length));
    }
    return {};
}

std::string UserDataFolder() {
    const std::string folder = LocalDataFolder();
    return folder.empty() ? folder : JoinPath(folder, kOwnName);
}

// Not in the program's folder, which is made whole or not at all.
std::string UserKeptFolder() {
    const std::string folder = LocalDataFolder();
    return folder.empty() ? folder : JoinPath(JoinPath(folder, Concat(kOwnName, " State")), kKeptFolderName);
}

// Only a try tells, since permissions, a read-only disk or protected folders can forbid it.
bool CanWriteIn(const std::string& folder) {
    const std::string path = JoinPath(folder, Concat(".orlo-", GetCurrentProcessId(), ".try"));
    WindowsHandle file = OpenOnDisk(path, OpenFor::Making);
    if (!file.IsOpen()) return false;
    file.Close();
    WindowsHandle::Remove(path);
    return true;
}

bool RenameFolder(const std::string& from, const std::string& to) {
    return MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(), 0) != 0;
}

}  // namespace orlo
