#include "core/Path.h"

#include <algorithm>

namespace orlo {
namespace {

std::size_t LastSeparator(std::string_view path) {
    for (std::size_t i = path.size(); i > 0; --i) {
        if (IsPathSeparator(path[i - 1])) return i - 1;
    }
    return std::string_view::npos;
}

}  // namespace

bool IsPathSeparator(char character) {
    return character == kPathSeparator || (kPathSeparator == '\\' && character == '/');
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && !IsPathSeparator(path.back())) path.push_back(kPathSeparator);
    path.append(name);
    return path;
}

std::string NativePath(std::string_view path) {
    std::string out(path);
    std::replace(out.begin(), out.end(), '\\', kPathSeparator);
    return out;
}

std::string ParentFolder(std::string_view path) {
    const std::size_t last = LastSeparator(path);
    if (last == std::string_view::npos) return {};
    const bool root = last == 0 || (last == 2 && path[1] == ':');
    return std::string(path.substr(0, root ? last + 1 : last));
}

std::string FileName(std::string_view path) {
    const std::size_t last = LastSeparator(path);
    return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

std::string_view WithoutTrailingSeparator(std::string_view path) {
    while (path.size() > 1 && IsPathSeparator(path.back())) path.remove_suffix(1);
    return path;
}

}  // namespace orlo
