#pragma once

#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

#include "core/Flight.h"

namespace orlo {

// Between two fields of a packed row. No line of a file can hold it, so a comma typed into a field shifts no
// other.
inline constexpr char kFieldSeparator = '\n';
inline constexpr int kFlightFields = 5;  // in front of the legs
inline constexpr int kLegFields = 6;

// A leg whose texts are lent by its row.
struct LegView {
    std::string_view DepartTime;
    std::string_view ETA;  // without the "@" mark
    bool FixedETA = false;
    std::string_view FlightLevel;
    std::string_view NumberMode;
    std::string_view FlightNumber;
    std::string_view Destination;
};

// The leg's own texts; they hold as long as it stands unchanged.
inline LegView ViewOf(const Leg& leg) {
    return {leg.DepartTime, leg.ETA,          leg.FixedETA,   leg.FlightLevel,
            leg.NumberMode, leg.FlightNumber, leg.Destination};
}

// Reads the fields of a packed row from the front.
class FieldReader {
  public:
    explicit FieldReader(std::string_view row) : at_(row.data()), end_(row.data() + row.size()) {}

    std::string_view Next() {
        const auto* stop =
            static_cast<const char*>(std::memchr(at_, kFieldSeparator, static_cast<std::size_t>(end_ - at_)));
        if (stop == nullptr) stop = end_;
        const std::string_view field(at_, static_cast<std::size_t>(stop - at_));
        at_ = stop < end_ ? stop + 1 : end_;
        return field;
    }
    LegView NextLeg();

  private:
    const char* at_;
    const char* end_;
};

// A flight whose texts are lent by its row. They hold as long as a list that shares the row.
struct FlightView {
    std::string_view ACNumber;
    std::string_view TailNumber;
    std::string_view Percent;
    std::string_view Period;
    std::string_view FlightType;
    std::int32_t LegCount = 0;
    bool Removed = false;
    std::string_view LegText;  // the packed fields of all legs

    // The legs in order, each read as the walk comes to it.
    class LegIterator {
      public:
        using value_type = LegView;
        using difference_type = std::ptrdiff_t;
        LegIterator(std::string_view text, std::int32_t left) : reader_(text), left_(left) {
            if (left_ > 0) leg_ = reader_.NextLeg();
        }
        const LegView& operator*() const { return leg_; }
        const LegView* operator->() const { return &leg_; }
        LegIterator& operator++() {
            if (--left_ > 0) leg_ = reader_.NextLeg();
            return *this;
        }
        bool operator==(const LegIterator& other) const { return left_ == other.left_; }

      private:
        FieldReader reader_;
        std::int32_t left_;
        LegView leg_;
    };
    LegIterator begin() const { return {LegText, LegCount}; }
    LegIterator end() const { return {{}, 0}; }

    // Where the round starts: the Destination of the last leg. Empty without legs.
    std::string_view StartAirport() const;
    // All texts empty without legs.
    LegView LastLeg() const;
};

// The flights of a plan, packed. Each flight is one immutable row in an arena that copies of the list share,
// so that a copy costs a handle a flight. Views hold as long as any list on the same arena. Changing a flight
// adds a row; a list that is changed as a whole is built anew on a fresh arena.
class FlightList {
  public:
    FlightList();

    std::int32_t Count() const { return static_cast<std::int32_t>(handles_.size()); }
    bool Empty() const { return handles_.empty(); }

    FlightView At(std::int32_t index) const;  // index from 0 to Count() - 1, here and below
    Flight Unpack(std::int32_t index) const;
    bool Removed(std::int32_t index) const {
        return (handles_[static_cast<std::size_t>(index)] & kRemovedBit) != 0;
    }
    // The fields as the file holds them but for the separator; without the Removed mark.
    std::string_view Row(std::int32_t index) const;

    void SetRemoved(std::int32_t index, bool removed);
    void Replace(std::int32_t index, const Flight& flight);
    void Append(const Flight& flight);
    // The same row, shared where both lists stand on one arena, else copied; the Removed mark comes along.
    void AppendFrom(const FlightList& other, std::int32_t index);
    // Drops the flights from `count` on.
    void Truncate(std::int32_t count);
    void Reserve(std::int32_t count) { handles_.reserve(static_cast<std::size_t>(count)); }
    void Clear();

    // An empty list on the arena of `other`, for selections from it.
    static FlightList SharingRowsOf(const FlightList& other);

    // Writes a row field by field. Between BeginRow and EndRow nothing else may change the list.
    void BeginRow(std::size_t mostBytes);  // room for the whole row with its separators
    void AddField(std::string_view field);
    void AddArrival(std::string_view eta, bool fixed);
    void AddFlightFields(const FlightView& flight);  // those in front of the legs
    void AddLegFields(const LegView& leg);
    // Appends the row as a flight; `legCount` legs must have been added.
    void EndRow(std::int32_t legCount, bool removed);

    // For the reader of a plan: room for a row of `mostBytes`, filled by the caller with separated fields.
    char* RowBuffer(std::size_t mostBytes);
    void CommitRow(std::size_t length, std::int32_t legCount);

    // Bytes that the rows of this list's arena take, dead ones included, and its handles.
    std::size_t MemoryBytes() const;
    // Of the handles alone: what a further list on the same arena costs.
    std::size_t HandleBytes() const { return handles_.capacity() * sizeof(Handle); }

  private:
    class Arena;
    using Handle = std::uintptr_t;  // address of the row's head; rows stand on multiples of 8
    static constexpr Handle kRemovedBit = 1;

    Handle PackRow(const Flight& flight);

    std::shared_ptr<Arena> arena_;
    std::pmr::vector<Handle> handles_;
    char* rowStart_ = nullptr;  // of the row being written
    char* rowEnd_ = nullptr;
};

}  // namespace orlo
