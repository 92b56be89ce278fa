#include "platform/windows/WindowsNames.h"

#include <algorithm>
#include <string_view>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/common/FileNames.h"
#include "platform/common/WindowsNames.h"
#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"

namespace orlo {
namespace {

// One look through names of a folder.
class NameSearch {
  public:
    explicit NameSearch(const std::wstring& pattern)
        : search_(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found_, FindExSearchNameMatch, nullptr,
                                   0)) {}
    NameSearch(const NameSearch&) = delete;
    NameSearch& operator=(const NameSearch&) = delete;
    ~NameSearch() {
        if (Any()) FindClose(search_);
    }

    bool Any() const { return search_ != INVALID_HANDLE_VALUE; }
    bool Next() { return FindNextFileW(search_, &found_) != 0; }
    std::string Name() const { return NarrowText(found_.cFileName); }
    bool IsFolder() const { return (found_.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }

  private:
    WIN32_FIND_DATAW found_{};
    HANDLE search_;
};

std::size_t EndOfName(std::string_view path, std::size_t start) {
    while (start < path.size() && !IsPathSeparator(path[start])) ++start;
    return start;
}

std::size_t EndOfSeparators(std::string_view path, std::size_t start) {
    while (start < path.size() && IsPathSeparator(path[start])) ++start;
    return start;
}

// Size of "C:\" or "\\server\share\" in front of the names; 0 for a relative path.
std::size_t RootSize(std::string_view path) {
    const std::size_t first = EndOfSeparators(path, 0);
    if (first < 2) return path.size() > 1 && path[1] == ':' ? EndOfSeparators(path, 2) : first;
    const std::size_t share = EndOfSeparators(path, EndOfName(path, first));
    return EndOfSeparators(path, EndOfName(path, share));
}

// The name as the disk spells it; empty when it is missing.
std::string SpelledName(const std::string& path, std::string_view name) {
    if (name == "." || name == "..") return std::string(name);
    const NameSearch search(SystemPath(path));
    return search.Any() ? search.Name() : std::string();
}

}  // namespace

std::string ResolveNames(const std::string& path) {
    if (!IsDiskPath(path)) return path;
    std::size_t start = RootSize(path);
    std::string resolved = path.substr(0, start);
    while (start < path.size()) {
        const std::size_t end = EndOfName(path, start);
        const std::string_view name = std::string_view(path).substr(start, end - start);
        const std::string spelled = SpelledName(Concat(resolved, name), name);
        if (spelled.empty()) break;
        start = EndOfSeparators(path, end);
        resolved.append(spelled).append(path, end, start - end);
    }
    return resolved.append(path, start);
}

std::vector<FolderEntry> ListNames(const std::string& folder) {
    std::wstring pattern = SystemPath(folder);
    if (pattern.empty()) return {};
    if (pattern.back() != L'\\') pattern.push_back(L'\\');
    NameSearch search(pattern.append(L"*"));
    std::vector<FolderEntry> entries;
    if (!search.Any()) return entries;
    do {
        std::string name = search.Name();
        if (name != "." && name != "..") entries.push_back({std::move(name), search.IsFolder()});
    } while (search.Next());
    SortByName(entries);
    return entries;
}

}  // namespace orlo
