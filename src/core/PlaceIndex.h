#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlo {

// The program's own hash table: finds places, from 0 on, by the hash of their keys. An entry is a place and
// half of its hash, eight bytes; the table is at most two thirds full. The keys stay with the owner, whose
// `holds(place)` says whether the place has the key that is asked for.
class PlaceIndex {
  public:
    // -1 when missing.
    template <typename Holds>
    std::int32_t Find(std::uint64_t hash, Holds holds) const {
        return table_.empty() ? kFree : table_[SlotOf(Half(hash), holds)].place;
    }

    // The place that has the key already, with nothing changed; else `place`, which has it from now on.
    template <typename Holds>
    std::int32_t FindOrAdd(std::uint64_t hash, std::int32_t place, Holds holds) {
        if ((count_ + 1) * 3 > table_.size() * 2) Resize(table_.empty() ? kFirstSize : table_.size() * 2);
        const std::uint32_t half = Half(hash);
        Entry& entry = table_[SlotOf(half, holds)];
        if (entry.place != kFree) return entry.place;
        entry = {place, half};
        ++count_;
        return place;
    }

    // Nothing happens when the key is missing.
    template <typename Holds>
    void Remove(std::uint64_t hash, Holds holds) {
        if (table_.empty()) return;
        std::size_t hole = SlotOf(Half(hash), holds);
        if (table_[hole].place == kFree) return;
        --count_;
        // An entry behind the hole that a search would no longer reach moves into it.
        for (std::size_t next = Next(hole); table_[next].place != kFree; next = Next(next)) {
            const std::size_t home = HomeOf(table_[next].half);
            if (((next - home) & Mask()) < ((next - hole) & Mask())) continue;
            table_[hole] = table_[next];
            hole = next;
        }
        table_[hole] = Entry();
    }

    // Room for so many places in all.
    void Reserve(std::size_t places) {
        std::size_t size = table_.empty() ? kFirstSize : table_.size();
        while (places * 3 > size * 2) size *= 2;
        if (size > table_.size()) Resize(size);
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
        std::uint32_t half = 0;  // of the hash
    };

    std::size_t Mask() const { return table_.size() - 1; }
    std::size_t HomeOf(std::uint32_t half) const { return half >> shift_; }
    std::size_t Next(std::size_t slot) const { return (slot + 1) & Mask(); }
    // Multiplication by a large odd number spreads the hash over the top bits.
    static std::uint32_t Half(std::uint64_t hash) {
        return static_cast<std::uint32_t>((hash * 0x9E3779B97F4A7C15u) >> 32);
    }

    // Where the key stands, or the free slot where it would go.
    template <typename Holds>
    std::size_t SlotOf(std::uint32_t half, Holds holds) const {
        std::size_t slot = HomeOf(half);
        while (table_[slot].place != kFree && (table_[slot].half != half || !holds(table_[slot].place))) {
            slot = Next(slot);
        }
        return slot;
    }

    void Resize(std::size_t size) {
        std::vector<Entry> old(size);
        old.swap(table_);
        shift_ = 32 - std::countr_zero(size);
        for (const Entry& entry : old) {
            if (entry.place == kFree) continue;
            std::size_t slot = HomeOf(entry.half);
            while (table_[slot].place != kFree) slot = Next(slot);
            table_[slot] = entry;
        }
    }

    std::vector<Entry> table_;  // its size is a power of two
    int shift_ = 32;            // leaves the top bits of a half, as many as tell a slot
    std::size_t count_ = 0;
};

}  // namespace orlo
