#pragma once

#include <cstdint>
#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Flight.h"
#include "core/FlightView.h"

namespace orlo {

class FlightArena;

// The flights of a plan, packed. Each flight is one immutable row; copies and selections of a list share
// their rows, so that a copy costs a handle a flight. A changed flight is a new row. Rows that left a list
// never take more memory than those in it. A selection is the exception: it holds all memory of the list it
// was taken from, until the selection itself is changed. A list that was moved from
// may only be assigned or destroyed.
class FlightList {
  public:
    std::int32_t Count() const { return static_cast<std::int32_t>(handles_.size()); }
    bool Empty() const { return handles_.empty(); }

    // `index` from 0 to Count() - 1, here and below. The view holds until the list is changed by more than a
    // mark or destroyed, and longer while another list shares the row.
    FlightView At(std::int32_t index) const;
    Flight Unpack(std::int32_t index) const;
    bool Removed(std::int32_t index) const {
        return (handles_[static_cast<std::size_t>(index)] & kRemovedBit) != 0;
    }
    // Appends the flight's line of a plan file to `out`, without a line end.
    void WriteLine(std::int32_t index, std::string& out) const;
    std::string Line(std::int32_t index) const;

    void SetRemoved(std::int32_t index, bool removed);
    // Line ends within the texts become blanks, here and in Append and Rewrite.
    void Replace(std::int32_t index, const Flight& flight);
    void Append(const Flight& flight);
    // Without the Removed mark.
    void Append(const LentFlight& flight);
    // For the reader of a plan: appends the flight of a line that needs no change. It has the fields of a
    // flight and of exactly `legCount` legs, separated by ",", and no line end.
    void AppendLine(std::string_view line, std::int32_t legCount);

    // Changes many flights in one pass. `change(index, flight, changed)` is called for each flight in order.
    // To change the flight, `change` assigns `flight` to `changed`, puts in other texts, which must hold
    // until the next call, and gives true; with false the flight keeps its row, which stays shared. The
    // list is unchanged until all flights have been seen, and stays so where `change` throws. `change` may
    // read the list and set Removed marks in it, nothing else.
    template <typename Change>
    void Rewrite(Change change);

    // The flights at these places, as a list that shares their rows, with their marks.
    FlightList Selection(std::span<const std::int32_t> places) const;
    // Drops the flights from `count` on.
    void Truncate(std::int32_t count);
    void Reserve(std::int32_t count) { handles_.reserve(static_cast<std::size_t>(count)); }
    void Clear() { *this = FlightList(); }

    // Bytes of all memory that this list holds, alone or shared with other lists.
    std::size_t MemoryBytes() const;
    // Bytes of the list's handles, which a copy costs.
    std::size_t HandleBytes() const { return handles_.capacity() * sizeof(Handle); }
    // Bytes of the rows in the list, and of all rows in the memory that it holds.
    std::size_t LiveBytes() const { return liveBytes_; }
    std::size_t HeldBytes() const;

  private:
    using Handle = std::uintptr_t;  // address of the row's head; rows stand on multiples of 8
    static constexpr Handle kRemovedBit = 1;
    using Arenas = std::vector<std::shared_ptr<FlightArena>>;

    // What a rewrite has made so far.
    struct Rewritten {
        std::pmr::vector<Handle> handles;
        std::shared_ptr<FlightArena> arena;  // of the changed rows; null without one
        std::size_t keptBytes = 0;           // of the rows that stay
        std::size_t newBytes = 0;
    };

    static std::string_view FieldsOf(Handle handle, std::uint32_t& legCount);
    static std::size_t BytesOf(Handle handle);
    static Handle CopyRow(Handle handle, FlightArena& arena);
    FlightArena& OwnArena();
    void DropDeadRows();
    void AddKept(std::int32_t index, Rewritten& rewritten) const;
    static void AddChanged(const LentFlight& flight, Rewritten& rewritten);
    void Take(Rewritten rewritten);

    Arenas arenas_;  // the last one takes new rows while no other list holds it
    std::pmr::vector<Handle> handles_;
    std::size_t liveBytes_ = 0;
};

template <typename Change>
void FlightList::Rewrite(Change change) {
    Rewritten rewritten;
    rewritten.handles.reserve(handles_.size());
    LentFlight changed;
    for (std::int32_t index = 0; index < Count(); ++index) {
        if (change(index, At(index), changed)) {
            AddChanged(changed, rewritten);
        } else {
            AddKept(index, rewritten);
        }
    }
    Take(std::move(rewritten));
}

}  // namespace orlo
