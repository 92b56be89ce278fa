#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace orlo {

// Reads little-endian values one after the other. A read beyond the end gives 0 or an empty text; so does
// every later read, and Ok() stays false. So a record is read whole and checked once.
class ByteReader {
  public:
    explicit ByteReader(std::string_view bytes, std::uint64_t position = 0) : bytes_(bytes) {
        Skip(position);
    }

    bool Ok() const { return ok_; }
    std::size_t Position() const { return position_; }
    std::size_t Left() const { return ok_ ? bytes_.size() - position_ : 0; }

    void Skip(std::uint64_t count) { Bytes(count); }
    std::uint16_t Word() { return Value<std::uint16_t>(); }
    std::uint32_t Dword() { return Value<std::uint32_t>(); }
    std::int32_t Int32() { return static_cast<std::int32_t>(Dword()); }
    float Single() { return std::bit_cast<float>(Dword()); }
    double Double() { return std::bit_cast<double>(Value<std::uint64_t>()); }

    std::string_view Bytes(std::uint64_t count) {
        if (count > Left()) {
            ok_ = false;
            return {};
        }
        const std::string_view found = bytes_.substr(position_, static_cast<std::size_t>(count));
        position_ += found.size();
        return found;
    }

  private:
    template <typename Unsigned>
    Unsigned Value() {
        static_assert(std::is_unsigned_v<Unsigned>);
        const std::string_view found = Bytes(sizeof(Unsigned));
        Unsigned value = 0;
        if constexpr (std::endian::native == std::endian::little) {
            if (!found.empty()) std::memcpy(&value, found.data(), sizeof(Unsigned));
        } else {
            for (std::size_t i = found.size(); i > 0; --i) {
                value = static_cast<Unsigned>(value << 8 | static_cast<unsigned char>(found[i - 1]));
            }
        }
        return value;
    }

    std::string_view bytes_;
    std::size_t position_ = 0;
    bool ok_ = true;
};

// The bytes up to the first 0, which is read too. Without a 0 it is a read beyond the end.
inline std::string_view ReadZeroText(ByteReader& reader) {
    ByteReader ahead = reader;
    const std::string_view rest = ahead.Bytes(ahead.Left());
    const std::size_t end = rest.find('\0');
    if (end == std::string_view::npos) {
        reader.Skip(static_cast<std::uint64_t>(rest.size()) + 1);
        return {};
    }
    const std::string_view text = reader.Bytes(end);
    reader.Skip(1);
    return text;
}

}  // namespace orlo
