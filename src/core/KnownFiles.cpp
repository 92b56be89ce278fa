#include "core/KnownFiles.h"

#include <vector>

#include "core/ContentHash.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::size_t kHashedPiece = std::size_t{256} * 1024;

bool HasContent(FileSystem& files, const std::string& path, std::uint64_t size, std::uint64_t hash) {
    const auto file = files.OpenForReading(path);
    if (!file || file->Size() != size) return false;
    HashedInput hashed(*file);
    std::vector<char> buffer(kHashedPiece);
    while (hashed.Read(buffer) > 0) {
    }
    return hashed.Hash() == hash;
}

}  // namespace

void KnownFiles::Know(const std::string& path, const std::optional<FileStamp>& stamp, std::uint64_t hash,
                      bool whole) {
    files_.Remove(path);
    if (stamp) files_.Add(path, {*stamp, hash, whole});
}

void KnownFiles::KnowWritten(FileSystem& files, const std::string& path, std::uint64_t hash) {
    Know(path, files.Stamp(path), hash, true);
}

bool KnownFiles::Replace(FileSystem& files, const std::string& path, std::string_view text) {
    if (!ReplaceWholeFile(files, path, text)) return false;
    KnowWritten(files, path, HashOf(text));
    return true;
}

bool KnownFiles::MayGo(FileSystem& files, const std::string& path) const {
    const auto stamp = files.Stamp(path);
    if (!stamp) return !files.FileExists(path);
    const Known* known = files_.Find(path);
    if (known == nullptr || !known->whole) return false;
    return known->stamp == *stamp || HasContent(files, path, known->stamp.size, known->hash);
}

}  // namespace orlo
