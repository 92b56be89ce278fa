#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "core/Text.h"

namespace orlo {

// Finds rows by key without regard to case. It holds a row's place and half of its key's hash, eight bytes
// each in a table that is at most two thirds full; the keys stay with their rows, and `keyOf(place)` lends
// them.
class PlaceIndex {
  public:
    // -1 when missing.
    template <typename KeyOf>
    std::int32_t Find(std::string_view key, KeyOf keyOf) const {
        return table_.empty() ? kFree : table_[SlotOf(key, HashOf(key), keyOf)].place;
    }

    // False, with nothing changed, when the key stands already.
    template <typename KeyOf>
    bool Add(std::string_view key, std::int32_t place, KeyOf keyOf) {
        if ((count_ + 1) * 3 > table_.size() * 2) Grow();
        const std::uint32_t hash = HashOf(key);
        Entry& entry = table_[SlotOf(key, hash, keyOf)];
        if (entry.place != kFree) return false;
        entry = {place, hash};
        ++count_;
        return true;
    }

    // The key must still be lent by `keyOf`; nothing happens when it is missing.
    template <typename KeyOf>
    void Remove(std::string_view key, KeyOf keyOf) {
        if (table_.empty()) return;
        std::size_t hole = SlotOf(key, HashOf(key), keyOf);
        if (table_[hole].place == kFree) return;
        --count_;
        // Whatever stands behind the hole and would not be found across it moves into it.
        for (std::size_t next = Next(hole); table_[next].place != kFree; next = Next(next)) {
            const std::size_t home = table_[next].hash & Mask();
            if (((next - home) & Mask()) < ((next - hole) & Mask())) continue;
            table_[hole] = table_[next];
            hole = next;
        }
        table_[hole] = Entry();
    }

    void Clear() {
        table_ = {};
        count_ = 0;
    }
    std::size_t Bytes() const { return table_.capacity() * sizeof(Entry); }

  private:
    static constexpr std::int32_t kFree = -1;
    static constexpr std::size_t kFirstSize = 16;

    struct Entry {
        std::int32_t place = kFree;
        std::uint32_t hash = 0;
    };

    std::size_t Mask() const { return table_.size() - 1; }
    std::size_t Next(std::size_t slot) const { return (slot + 1) & Mask(); }
    static std::uint32_t HashOf(std::string_view key) {
        const std::uint64_t spread = HashNoCase(key) * 0x9E3779B97F4A7C15ull;
        return static_cast<std::uint32_t>(spread >> 32);
    }

    // Where the key stands, or the free slot where it would go.
    template <typename KeyOf>
    std::size_t SlotOf(std::string_view key, std::uint32_t hash, KeyOf keyOf) const {
        std::size_t slot = hash & Mask();
        while (table_[slot].place != kFree &&
               (table_[slot].hash != hash || !EqualNoCase(keyOf(table_[slot].place), key))) {
            slot = Next(slot);
        }
        return slot;
    }

    void Grow() {
        std::vector<Entry> old(table_.empty() ? kFirstSize : table_.size() * 2);
        old.swap(table_);
        for (const Entry& entry : old) {
            if (entry.place == kFree) continue;
            std::size_t slot = entry.hash & Mask();
            while (table_[slot].place != kFree) slot = Next(slot);
            table_[slot] = entry;
        }
    }

    std::vector<Entry> table_;  // a power of two
    std::size_t count_ = 0;
};

}  // namespace orlo
