#include "platform/windows/WindowsOutput.h"

#include "core/Path.h"
#include "core/Text.h"
#include "platform/common/OutputFiles.h"
#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsHandle.h"

namespace orlo {
namespace {

constexpr int kMostNames = 1000;

// What stands at a path.
struct Standing {
    bool missing = false;  // surely nothing
    bool isLink = false;
};

Standing LookAt(const std::string& path) {
    const std::wstring systemPath = SystemPath(path);
    const DWORD attributes = GetFileAttributesW(systemPath.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return {GetLastError() == ERROR_FILE_NOT_FOUND, false};
    return {false, (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0};
}

// A new file in the folder under a name that no reader takes for the target.
std::unique_ptr<OutputFile> OpenBeside(const std::string& target) {
    const std::string folder = ParentFolder(target);
    for (int i = 0; i < kMostNames; ++i) {
        std::string temporary = JoinPath(folder, Concat(".orlo-", GetCurrentProcessId(), "-", i, ".new"));
        WindowsHandle file = OpenOnDisk(temporary, OpenFor::Making);
        if (file.IsOpen())
            return std::make_unique<BesideFile<WindowsHandle>>(std::move(temporary), target, std::move(file));
        if (LookAt(temporary).missing) return nullptr;
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<OutputFile> OpenReplacing(const std::string& path) {
    std::string target = FullPath(path);
    if (target.empty() || FileName(target).empty()) return nullptr;
    const Standing standing = LookAt(target);
    if (standing.missing) return OpenBeside(target);
    // Opening it shows whether the user may write it at all, and where its links lead.
    WindowsHandle old = OpenOnDisk(target, OpenFor::Writing);
    if (!old.IsOpen()) return nullptr;
    if (standing.isLink) target = FinalPath(old);
    if (!target.empty()) {
        if (auto file = OpenBeside(target)) return file;
    }
    return std::make_unique<OverwrittenFile<WindowsHandle>>(std::move(old));
}

std::unique_ptr<OutputFile> OpenInPlace(const std::string& path) {
    WindowsHandle file = OpenOnDisk(path, OpenFor::Truncating);
    if (!file.IsOpen()) return nullptr;
    return std::make_unique<InPlaceFile<WindowsHandle>>(std::move(file));
}

std::unique_ptr<OutputFile> OpenNew(const std::string& path) {
    const std::wstring systemPath = SystemPath(path);
    if (systemPath.empty()) return nullptr;
    WindowsHandle file(CreateFileW(systemPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) return nullptr;
    return std::make_unique<InPlaceFile<WindowsHandle>>(std::move(file));
}

bool WritePatches(const std::string& path, std::span<const FilePatch> patches) {
    WindowsHandle file = OpenOnDisk(path, OpenFor::Writing);
    return file.IsOpen() && PatchBytes(file, patches) && file.Close();
}

}  // namespace orlo
