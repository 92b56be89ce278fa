#include "core/KeptContent.h"

#include <vector>

namespace orlo {
namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;

constexpr std::size_t kFront = std::size_t{64} * 1024;

// FNV-1a.
std::uint64_t HashOfFront(std::uint64_t size, std::string_view front) {
    constexpr std::uint64_t kPrime = 0x100000001B3;
    std::uint64_t hash = 0xCBF29CE484222325 ^ size;
    for (const char byte : front) hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    return hash;
}

// The next bytes, as many as the buffer holds but for the last ones.
std::string_view ReadPiece(InputFile& file, std::vector<char>& buffer) {
    std::size_t length = 0;
    while (length < buffer.size()) {
        const std::size_t count = file.Read(std::span<char>(buffer).subspan(length));
        if (count == 0) break;
        length += count;
    }
    return {buffer.data(), length};
}

}  // namespace

std::optional<ContentFacts> ContentFactsOf(FileSystem& files, const std::string& path) {
    const auto file = files.OpenForReading(path);
    if (!file) return std::nullopt;
    std::vector<char> buffer(kFront);
    return ContentFacts{file->Size(), HashOfFront(file->Size(), ReadPiece(*file, buffer))};
}

ContentFacts ContentFactsOf(std::string_view text) {
    return {text.size(), HashOfFront(text.size(), text.substr(0, kFront))};
}

bool SameContent(FileSystem& files, const std::string& one, const std::string& other) {
    const auto first = files.OpenForReading(one);
    const auto second = files.OpenForReading(other);
    if (!first || !second || first->Size() != second->Size()) return false;
    std::vector<char> firstBuffer(kPiece);
    std::vector<char> secondBuffer(kPiece);
    std::uint64_t size = 0;
    for (;;) {
        const std::string_view piece = ReadPiece(*first, firstBuffer);
        if (piece != ReadPiece(*second, secondBuffer)) return false;
        if (piece.empty()) return size == first->Size();
        size += piece.size();
    }
}

bool SameText(FileSystem& files, const std::string& path, std::string_view text) {
    const auto file = files.OpenForReading(path);
    if (!file || file->Size() != text.size()) return false;
    std::vector<char> buffer(kPiece);
    for (;;) {
        const std::string_view piece = ReadPiece(*file, buffer);
        if (piece.empty()) return text.empty();
        if (!text.starts_with(piece)) return false;
        text.remove_prefix(piece.size());
    }
}

}  // namespace orlo
