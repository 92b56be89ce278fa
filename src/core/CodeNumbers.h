#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "core/PlaceIndex.h"

namespace orlo {

// Gives each text, such as a code or an aircraft number, a number of its own: from 0, in the order in which
// they are first asked for. Case counts. So a pass over many legs looks each text up in a large index only
// once.
class CodeNumbers {
  public:
    // A new text must outlive this.
    std::int32_t Number(std::string_view text) {
        const std::uint64_t key = KeyOf(text);
        const std::int32_t number = index_.FindOrAdd(key, Count(), [&](std::int32_t at) {
            const auto place = static_cast<std::size_t>(at);
            return keys_[place] == key && ((key & kLongText) == 0 || texts_[place] == text);
        });
        if (number == Count()) {
            keys_.push_back(key);
            texts_.push_back(text);
        }
        return number;
    }
    std::string_view Text(std::int32_t number) const { return texts_[static_cast<std::size_t>(number)]; }
    std::size_t Bytes() const {
        return index_.Bytes() + keys_.capacity() * sizeof(std::uint64_t) +
               texts_.capacity() * sizeof(std::string_view);
    }
    std::int32_t Count() const { return static_cast<std::int32_t>(texts_.size()); }

  private:
    static constexpr std::uint64_t kLongText = std::uint64_t{1} << 63;

    // The key of a text of up to seven bytes is its bytes and, in the top byte, its length, so no two share
    // one. Longer texts have the top bit set and may share a key, so they must be compared.
    static std::uint64_t KeyOf(std::string_view text) {
        const std::size_t size = text.size();
        if (size >= sizeof(std::uint64_t)) return std::hash<std::string_view>{}(text) | kLongText;
        std::uint64_t key = static_cast<std::uint64_t>(size) << 56;
        if (size >= 4) {  // most codes: the first four bytes and the last four, which may overlap
            key |= FourBytes(text.data());
            return key | FourBytes(text.data() + size - 4) << (8 * (size - 4));
        }
        for (std::size_t i = 0; i < size; ++i) {
            key |= static_cast<std::uint64_t>(static_cast<unsigned char>(text[i])) << (8 * i);
        }
        return key;
    }
    static std::uint64_t FourBytes(const char* bytes) {
        const auto byte = [bytes](int i) {
            return static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i]));
        };
        return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24;
    }

    PlaceIndex index_;
    std::vector<std::uint64_t> keys_;  // by number; a short text is found by its key alone
    std::vector<std::string_view> texts_;
};

// Remembers what was found for each text.
class CodeMemo {
  public:
    // What `find(text)` gave when the text was first asked for. A new text must outlive this.
    template <typename Find>
    std::int32_t Get(std::string_view text, Find find) {
        const std::int32_t number = numbers_.Number(text);
        if (static_cast<std::size_t>(number) == found_.size()) found_.push_back(find(text));
        return found_[static_cast<std::size_t>(number)];
    }

  private:
    CodeNumbers numbers_;
    std::vector<std::int32_t> found_;  // by number
};

}  // namespace orlo
