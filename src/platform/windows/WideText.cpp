#include "platform/windows/WideText.h"

#include <limits>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/common/WindowsNames.h"
#include "platform/windows/SystemHeader.h"

namespace orlo {
namespace {

constexpr std::wstring_view kLongMark = L"\\\\?\\";
constexpr std::wstring_view kLongShareMark = L"\\\\?\\UNC\\";
constexpr std::size_t kLongestText = std::numeric_limits<int>::max() / 4;

// Appends a text that is valid UTF-8.
void AppendWide(std::wstring& out, std::string_view utf8) {
    if (utf8.empty() || utf8.size() > kLongestText) return;
    const int size = static_cast<int>(utf8.size());
    const int count = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    if (count <= 0) return;
    const std::size_t start = out.size();
    out.resize(start + static_cast<std::size_t>(count));
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, out.data() + start, count);
}

std::wstring FullWidePath(const std::string& path) {
    if (!IsDiskPath(path)) return {};
    const std::wstring wide = WideText(path);
    std::wstring full(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
        const bool fits = length < full.size();
        full.resize(length);
        if (length == 0 || fits) break;
    }
    // Checked again: the system drops blanks and dots at the end of a name, which may leave that of a device.
    return IsDiskPath(NarrowText(full)) ? full : std::wstring();
}

}  // namespace

std::wstring WideText(std::string_view text) {
    std::wstring out;
    while (!text.empty()) {
        std::size_t end = 0;
        while (end < text.size() && !IsPathSeparator(text[end])) ++end;
        AppendWide(out, ToScreen(text.substr(0, end)));
        if (end < text.size()) out.push_back(static_cast<wchar_t>(text[end++]));
        text.remove_prefix(end);
    }
    return out;
}

std::string NarrowText(std::wstring_view text) {
    if (text.empty() || text.size() > kLongestText) return {};
    const int size = static_cast<int>(text.size());
    const int count = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    if (count <= 0) return {};
    std::string out(static_cast<std::size_t>(count), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, out.data(), count, nullptr, nullptr);
    return out;
}

std::string PlainPath(std::wstring_view path) {
    if (path.starts_with(kLongShareMark)) return "\\\\" + NarrowText(path.substr(kLongShareMark.size()));
    if (path.starts_with(kLongMark)) return NarrowText(path.substr(kLongMark.size()));
    return NarrowText(path);
}

std::string FullPath(const std::string& path) {
    return NarrowText(FullWidePath(path));
}

std::wstring SystemPath(const std::string& path) {
    std::wstring full = FullWidePath(path);
    if (full.empty()) return full;
    if (full.starts_with(L"\\\\")) return full.replace(0, 2, kLongShareMark);
    return full.insert(0, kLongMark);
}

}  // namespace orlo
