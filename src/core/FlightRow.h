#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace orlo {

// A flight's packed row: a head with the count of its legs and the length of its fields, then the fields of
// its line, each but the last followed by a separator. No line of a file can hold the separator, so a comma
// typed into a field shifts no other. Only the list of flights and the views that it lends know this layout.

inline constexpr char kRowSeparator = '\n';

struct RowHead {
    std::uint32_t legCount;
    std::uint32_t length;  // bytes of the fields
};

inline constexpr std::size_t kRowAlignment = 8;

// Bytes that a row takes in an arena, for `length` bytes of fields.
inline std::size_t RowBytes(std::size_t length) {
    return (sizeof(RowHead) + length + kRowAlignment - 1) / kRowAlignment * kRowAlignment;
}

// Reads the fields of a packed row from the front.
class RowReader {
  public:
    explicit RowReader(std::string_view row) : at_(row.data()), end_(row.data() + row.size()) {}

    std::string_view Next() {
        const auto* stop =
            static_cast<const char*>(std::memchr(at_, kRowSeparator, static_cast<std::size_t>(end_ - at_)));
        if (stop == nullptr) stop = end_;
        const std::string_view field(at_, static_cast<std::size_t>(stop - at_));
        at_ = stop < end_ ? stop + 1 : end_;
        return field;
    }

  private:
    const char* at_;
    const char* end_;
};

}  // namespace orlo
