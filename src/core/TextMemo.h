#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace orlo {

// Remembers what was found for short texts such as codes and numbers, compared exactly, so that a pass over
// many legs asks a large index once a text. Its memory is fixed: when it is full, for texts of more than 8
// bytes, and where too many texts share a place, each question is asked anew.
class TextMemo {
  public:
    // Room for at least so many different texts.
    explicit TextMemo(std::size_t texts) : slots_(std::bit_ceil(2 * texts + 64)) {}

    // What `find(text)` gave for the text the first time.
    template <typename Find>
    std::int32_t Get(std::string_view text, Find find) {
        if (text.size() > sizeof(std::uint64_t) || text.empty()) return find(text);
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text.data(), text.size());
        const auto length = static_cast<std::uint32_t>(text.size());
        const std::size_t mask = slots_.size() - 1;
        // Multiplication by a large odd number spreads the bytes over the top bits.
        std::size_t place = static_cast<std::size_t>((bytes * 0x9E3779B97F4A7C15u) >> shift_);
        for (int probes = 0; slots_[place].length != 0; place = (place + 1) & mask) {
            if (slots_[place].bytes == bytes && slots_[place].length == length) return slots_[place].value;
            if (++probes == kMostProbes) return find(text);
        }
        const std::int32_t value = find(text);
        if (used_ < slots_.size() / 2) {
            slots_[place] = {bytes, length, value};
            ++used_;
        }
        return value;
    }

  private:
    static constexpr int kMostProbes = 32;

    struct Slot {
        std::uint64_t bytes = 0;
        std::uint32_t length = 0;  // 0 is free
        std::int32_t value = 0;
    };
    std::vector<Slot> slots_;  // a power of two
    int shift_ = 64 - std::countr_zero(slots_.size());
    std::size_t used_ = 0;
};

}  // namespace orlo
