#include "core/KnownFiles.h"

namespace orlo {

void KnownFiles::Know(FileSystem& files, const std::string& path, bool whole) {
    files_.Remove(path);
    if (const auto stamp = files.Stamp(path)) files_.Add(path, {*stamp, whole});
}

bool KnownFiles::MayGo(FileSystem& files, const std::string& path) const {
    const auto stamp = files.Stamp(path);
    if (!stamp) return !files.FileExists(path);
    const Known* known = files_.Find(path);
    return known != nullptr && known->whole && known->stamp == *stamp;
}

}  // namespace orlo
