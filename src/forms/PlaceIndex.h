#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "core/Text.h"

namespace orlo {

// Finds rows by key without regard to case. It holds the rows' places alone, four bytes each in a table that
// is at most two thirds full; the keys stay with their rows, and `keyOf(place)` lends them.
class PlaceIndex {
  public:
    // -1 when missing.
    template <typename KeyOf>
    std::int32_t Find(std::string_view key, KeyOf keyOf) const {
        if (table_.empty()) return kFree;
        return table_[SlotOf(key, keyOf)];
    }

    // The key of `place`, which `keyOf` knows already, must not stand here yet.
    template <typename KeyOf>
    void Add(std::int32_t place, KeyOf keyOf) {
        if ((count_ + 1) * 3 > table_.size() * 2) Grow(keyOf);
        table_[SlotOf(keyOf(place), keyOf)] = place;
        ++count_;
    }

    // The key must still be lent by `keyOf`; nothing happens when it is missing.
    template <typename KeyOf>
    void Remove(std::string_view key, KeyOf keyOf) {
        if (table_.empty()) return;
        std::size_t hole = SlotOf(key, keyOf);
        if (table_[hole] == kFree) return;
        --count_;
        // Whatever stands behind the hole and would not be found across it moves into it.
        for (std::size_t next = Next(hole); table_[next] != kFree; next = Next(next)) {
            const std::size_t home = Home(keyOf(table_[next]));
            if (((next - home) & Mask()) < ((next - hole) & Mask())) continue;
            table_[hole] = table_[next];
            hole = next;
        }
        table_[hole] = kFree;
    }

    void Clear() {
        table_.clear();
        count_ = 0;
    }
    std::size_t Bytes() const { return table_.capacity() * sizeof(std::int32_t); }

  private:
    static constexpr std::int32_t kFree = -1;
    static constexpr std::size_t kFirstSize = 16;

    std::size_t Mask() const { return table_.size() - 1; }
    std::size_t Next(std::size_t slot) const { return (slot + 1) & Mask(); }
    std::size_t Home(std::string_view key) const {
        const std::uint64_t spread = HashNoCase(key) * 0x9E3779B97F4A7C15ull;
        return static_cast<std::size_t>(spread >> 32) & Mask();
    }

    // Where the key stands, or the free slot where it would go.
    template <typename KeyOf>
    std::size_t SlotOf(std::string_view key, KeyOf keyOf) const {
        std::size_t slot = Home(key);
        while (table_[slot] != kFree && !EqualNoCase(keyOf(table_[slot]), key)) slot = Next(slot);
        return slot;
    }

    template <typename KeyOf>
    void Grow(KeyOf keyOf) {
        std::vector<std::int32_t> old(table_.empty() ? kFirstSize : table_.size() * 2, kFree);
        old.swap(table_);
        for (const std::int32_t place : old) {
            if (place == kFree) continue;
            std::size_t slot = Home(keyOf(place));
            while (table_[slot] != kFree) slot = Next(slot);
            table_[slot] = place;
        }
    }

    std::vector<std::int32_t> table_;  // a power of two
    std::size_t count_ = 0;
};

}  // namespace orlo
