#include "platform/posix/PosixNames.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>

#include "core/Path.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr int kMostLinks = 40;

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};
using FolderHandle = std::unique_ptr<DIR, CloseFolder>;

FolderHandle OpenFolder(const std::string& path) {
    return FolderHandle(opendir(path.empty() ? "." : path.c_str()));
}

// Hands each entry but "." and ".." to `take`.
template <typename Take>
void WalkFolder(DIR* folder, Take take) {
    while (const dirent* entry = readdir(folder)) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") take(*entry, name);
    }
}

bool Exists(const std::string& path) {
    struct stat facts {};
    return lstat(path.c_str(), &facts) == 0;
}

// The name in the folder that equals `name` but for case; empty when there is none.
std::string FindName(const std::string& folder, std::string_view name) {
    const FolderHandle handle = OpenFolder(folder);
    if (!handle) return {};
    const std::string wanted = FoldedFileName(name);
    std::string found;
    WalkFolder(handle.get(), [&](const dirent&, std::string_view entry) {
        if ((found.empty() || entry < found) && FoldedFileName(entry) == wanted) found = entry;
    });
    return found;
}

bool IsFolder(DIR* folder, const dirent& entry) {
#ifdef DT_DIR
    if (entry.d_type == DT_DIR) return true;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return false;
#endif
    struct stat facts {};
    return fstatat(dirfd(folder), entry.d_name, &facts, 0) == 0 && S_ISDIR(facts.st_mode);
}

}  // namespace

bool IsUsablePath(std::string_view path) {
    return !path.empty() && path.find('\0') == std::string_view::npos;
}

std::string ResolveNames(const std::string& path) {
    if (!IsUsablePath(path) || Exists(path)) return path;
    std::string resolved;
    std::size_t start = 0;
    while (start < path.size()) {
        if (path[start] == kPathSeparator) {
            resolved.push_back(path[start++]);
            continue;
        }
        const std::size_t end = std::min(path.find(kPathSeparator, start), path.size());
        const std::string_view name = std::string_view(path).substr(start, end - start);
        if (Exists(Concat(resolved, name))) {
            resolved.append(name);
        } else {
            const std::string found = FindName(resolved, name);
            if (found.empty()) break;
            resolved.append(found);
        }
        start = end;
    }
    return resolved.append(path, start);
}

std::string FollowLinks(std::string path) {
    for (int i = 0; i < kMostLinks; ++i) {
        std::array<char, 4096> buffer;
        const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0) return path;
        if (length == 0 || static_cast<std::size_t>(length) == buffer.size()) return {};
        const std::string_view target(buffer.data(), static_cast<std::size_t>(length));
        path = target.front() == kPathSeparator ? std::string(target) : JoinPath(ParentFolder(path), target);
    }
    return {};
}

std::vector<FolderEntry> ListNames(const std::string& folder) {
    const FolderHandle handle = OpenFolder(folder);
    if (!handle) return {};
    std::vector<FolderEntry> entries;
    WalkFolder(handle.get(), [&](const dirent& entry, std::string_view name) {
        entries.push_back({std::string(name), IsFolder(handle.get(), entry)});
    });
    SortByName(entries);
    return entries;
}

}  // namespace orlo
