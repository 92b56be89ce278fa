#include "forms/PackedFields.h"

#include <algorithm>

namespace orlo {
namespace {

constexpr std::size_t kFirstPage = 4 * 1024;
constexpr std::size_t kLargestPage = 1024 * 1024;

}  // namespace

void AppendField(std::string& out, std::string_view text) {
    std::size_t length = text.size();
    for (; length > 0x7F; length >>= 7) out.push_back(static_cast<char>((length & 0x7F) | 0x80));
    out.push_back(static_cast<char>(length));
    out.append(text);
}

std::string_view PackedReader::Next() {
    std::size_t length = 0;
    std::size_t used = 0;
    for (unsigned shift = 0; used < rest_.size(); shift += 7) {
        const auto byte = static_cast<unsigned char>(rest_[used++]);
        length |= static_cast<std::size_t>(byte & 0x7F) << shift;
        if ((byte & 0x80) == 0) break;
    }
    const std::string_view field = rest_.substr(used, length);
    rest_.remove_prefix(used + field.size());
    return field;
}

std::string_view FieldAt(std::string_view row, std::size_t index) {
    PackedReader reader(row);
    for (std::size_t i = 0; i < index && !reader.AtEnd(); ++i) reader.Next();
    return reader.Next();
}

char* BytePages::Add(std::string_view bytes) {
    if (bytes.size() > left_) {
        const std::size_t size = std::max(bytes.size(), std::clamp(allocated_, kFirstPage, kLargestPage));
        pages_.push_back(std::make_unique_for_overwrite<char[]>(size));
        at_ = pages_.back().get();
        left_ = size;
        allocated_ += size;
    }
    char* start = at_;
    bytes.copy(start, bytes.size());
    at_ += bytes.size();
    left_ -= bytes.size();
    return start;
}

void BytePages::Clear() {
    *this = BytePages();
}

}  // namespace orlo
