#include "core/FlightList.h"

#include <algorithm>
#include <cassert>

namespace orlo {
namespace {

// In front of each row's fields.
struct RowHead {
    std::uint32_t legCount;
    std::uint32_t length;  // bytes of the fields
};

constexpr std::size_t kRowAlignment = 8;
constexpr std::size_t kFirstChunk = 16 * 1024;
constexpr std::size_t kMostInSmallChunks = 256 * 1024;
constexpr std::size_t kLargeChunk = 4 * 1024 * 1024;
constexpr std::size_t kLargePage = 2 * 1024 * 1024;

char* FieldsOf(char* rowStart) {
    return rowStart + sizeof(RowHead);
}

// A separator inside a field would shift all fields behind it, and a carriage return would end the line once
// it is written.
void CopyField(char*& out, std::string_view field) {
    const auto endsLine = [](char character) { return character == kFieldSeparator || character == '\r'; };
    out = std::replace_copy_if(field.begin(), field.end(), out, endsLine, ' ');
}

std::size_t PackedSize(const Flight& flight) {
    std::size_t size = flight.ACNumber.size() + flight.TailNumber.size() + flight.Percent.size() +
                       flight.Period.size() + flight.FlightType.size() + kFlightFields;
    for (const Leg& leg : flight.Legs) {
        size += leg.DepartTime.size() + leg.ETA.size() + 1 + leg.FlightLevel.size() + leg.NumberMode.size() +
                leg.FlightNumber.size() + leg.Destination.size() + kLegFields;
    }
    return size;
}

}  // namespace

// Memory of rows: chunks that only grow, so that a row never moves.
class FlightList::Arena {
  public:
    // Room for a row's head and `mostBytes` of fields.
    char* Reserve(std::size_t mostBytes) {
        const std::size_t wanted = sizeof(RowHead) + mostBytes + kRowAlignment;
        if (static_cast<std::size_t>(end_ - next_) < wanted) AddChunk(wanted);
        return next_;
    }

    // Takes what a reserved row used.
    void Commit(const char* rowEnd) {
        const auto used = static_cast<std::size_t>(rowEnd - next_);
        next_ += (used + kRowAlignment - 1) / kRowAlignment * kRowAlignment;
    }

    std::size_t Bytes() const { return bytes_; }

    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena() {
        for (const Chunk& chunk : chunks_) memory_->deallocate(chunk.start, chunk.size, chunk.alignment);
    }

  private:
    struct Chunk {
        void* start;
        std::size_t size;
        std::size_t alignment;
    };

    void AddChunk(std::size_t wanted) {
        // A list that has outgrown the small chunks goes over to whole large pages.
        const std::size_t usual = bytes_ < kMostInSmallChunks ? kFirstChunk : kLargeChunk;
        const std::size_t size = std::max(wanted, usual);
        const std::size_t alignment = size >= kLargeChunk ? kLargePage : kRowAlignment;
        chunks_.reserve(chunks_.size() + 1);
        chunks_.push_back({memory_->allocate(size, alignment), size, alignment});
        next_ = static_cast<char*>(chunks_.back().start);
        end_ = next_ + size;
        bytes_ += size;
    }

    // The first touch of fresh memory costs more than filling it; a program that sets a resource of large
    // pages as the default one saves most of that.
    std::pmr::memory_resource* memory_ = std::pmr::get_default_resource();
    std::vector<Chunk> chunks_;
    char* next_ = nullptr;
    char* end_ = nullptr;
    std::size_t bytes_ = 0;
};

LegView FieldReader::NextLeg() {
    LegView leg;
    leg.DepartTime = Next();
    leg.ETA = Next();
    if (!leg.ETA.empty() && leg.ETA.front() == '@') {
        leg.FixedETA = true;
        leg.ETA.remove_prefix(1);
    }
    leg.FlightLevel = Next();
    leg.NumberMode = Next();
    leg.FlightNumber = Next();
    leg.Destination = Next();
    return leg;
}

std::string_view FlightView::StartAirport() const {
    if (LegCount == 0) return {};
    const std::size_t last = LegText.rfind(kFieldSeparator);
    return last == std::string_view::npos ? LegText : LegText.substr(last + 1);
}

LegView FlightView::LastLeg() const {
    if (LegCount == 0) return {};
    std::size_t start = LegText.size();
    for (int field = 0; field < kLegFields && start != std::string_view::npos; ++field) {
        start = start == 0 ? std::string_view::npos : LegText.rfind(kFieldSeparator, start - 1);
    }
    return FieldReader(start == std::string_view::npos ? LegText : LegText.substr(start + 1)).NextLeg();
}

FlightList::FlightList() : arena_(std::make_shared<Arena>()) {}

FlightList FlightList::SharingRowsOf(const FlightList& other) {
    FlightList list;
    list.arena_ = other.arena_;
    return list;
}

std::string_view FlightList::Row(std::int32_t index) const {
    const auto* start =
        reinterpret_cast<const char*>(handles_[static_cast<std::size_t>(index)] & ~kRemovedBit);
    RowHead head;
    std::memcpy(&head, start, sizeof head);
    return {start + sizeof head, head.length};
}

FlightView FlightList::At(std::int32_t index) const {
    const auto* start =
        reinterpret_cast<const char*>(handles_[static_cast<std::size_t>(index)] & ~kRemovedBit);
    RowHead head;
    std::memcpy(&head, start, sizeof head);
    const std::string_view row(start + sizeof head, head.length);
    FieldReader reader(row);
    FlightView flight;
    flight.ACNumber = reader.Next();
    flight.TailNumber = reader.Next();
    flight.Percent = reader.Next();
    flight.Period = reader.Next();
    flight.FlightType = reader.Next();
    flight.LegCount = static_cast<std::int32_t>(head.legCount);
    flight.Removed = Removed(index);
    if (flight.LegCount > 0) {
        const char* legs = flight.FlightType.data() + flight.FlightType.size() + 1;
        flight.LegText = row.substr(static_cast<std::size_t>(legs - row.data()));
    }
    return flight;
}

Flight FlightList::Unpack(std::int32_t index) const {
    const FlightView view = At(index);
    Flight flight;
    flight.ACNumber = view.ACNumber;
    flight.TailNumber = view.TailNumber;
    flight.Percent = view.Percent;
    flight.Period = view.Period;
    flight.FlightType = view.FlightType;
    flight.Removed = view.Removed;
    flight.Legs.reserve(static_cast<std::size_t>(view.LegCount));
    for (const LegView& leg : view) {
        flight.Legs.push_back({std::string(leg.DepartTime), std::string(leg.ETA), leg.FixedETA,
                               std::string(leg.FlightLevel), std::string(leg.NumberMode),
                               std::string(leg.FlightNumber), std::string(leg.Destination)});
    }
    return flight;
}

void FlightList::SetRemoved(std::int32_t index, bool removed) {
    Handle& handle = handles_[static_cast<std::size_t>(index)];
    handle = removed ? handle | kRemovedBit : handle & ~kRemovedBit;
}

FlightList::Handle FlightList::PackRow(const Flight& flight) {
    BeginRow(PackedSize(flight));
    AddField(flight.ACNumber);
    AddField(flight.TailNumber);
    AddField(flight.Percent);
    AddField(flight.Period);
    AddField(flight.FlightType);
    for (const Leg& leg : flight.Legs) AddLegFields(ViewOf(leg));
    EndRow(flight.LegCount(), flight.Removed);
    const Handle handle = handles_.back();
    handles_.pop_back();
    return handle;
}

void FlightList::Replace(std::int32_t index, const Flight& flight) {
    handles_[static_cast<std::size_t>(index)] = PackRow(flight);
}

void FlightList::Append(const Flight& flight) {
    handles_.push_back(PackRow(flight));
}

void FlightList::AppendFrom(const FlightList& other, std::int32_t index) {
    if (arena_ == other.arena_) {
        handles_.push_back(other.handles_[static_cast<std::size_t>(index)]);
        return;
    }
    const auto* start =
        reinterpret_cast<const char*>(other.handles_[static_cast<std::size_t>(index)] & ~kRemovedBit);
    RowHead head;
    std::memcpy(&head, start, sizeof head);
    char* fields = RowBuffer(head.length);
    std::memcpy(fields, start + sizeof head, head.length);
    CommitRow(head.length, static_cast<std::int32_t>(head.legCount));
    SetRemoved(Count() - 1, other.Removed(index));
}

void FlightList::Truncate(std::int32_t count) {
    handles_.resize(static_cast<std::size_t>(count));
}

void FlightList::Clear() {
    *this = FlightList();
}

void FlightList::BeginRow(std::size_t mostBytes) {
    rowStart_ = arena_->Reserve(mostBytes);
    rowEnd_ = FieldsOf(rowStart_);
}

void FlightList::AddField(std::string_view field) {
    CopyField(rowEnd_, field);
    *rowEnd_++ = kFieldSeparator;
}

void FlightList::AddArrival(std::string_view eta, bool fixed) {
    if (fixed) *rowEnd_++ = '@';
    AddField(eta);
}

void FlightList::AddFlightFields(const FlightView& flight) {
    for (const std::string_view field :
         {flight.ACNumber, flight.TailNumber, flight.Percent, flight.Period, flight.FlightType}) {
        AddField(field);
    }
}

void FlightList::AddLegFields(const LegView& leg) {
    AddField(leg.DepartTime);
    AddArrival(leg.ETA, leg.FixedETA);
    for (const std::string_view field :
         {leg.FlightLevel, leg.NumberMode, leg.FlightNumber, leg.Destination}) {
        AddField(field);
    }
}

void FlightList::EndRow(std::int32_t legCount, bool removed) {
    assert(rowEnd_ > FieldsOf(rowStart_));
    CommitRow(static_cast<std::size_t>(rowEnd_ - FieldsOf(rowStart_)) - 1, legCount);
    SetRemoved(Count() - 1, removed);
}

char* FlightList::RowBuffer(std::size_t mostBytes) {
    rowStart_ = arena_->Reserve(mostBytes);
    return FieldsOf(rowStart_);
}

void FlightList::CommitRow(std::size_t length, std::int32_t legCount) {
    const RowHead head{static_cast<std::uint32_t>(legCount), static_cast<std::uint32_t>(length)};
    std::memcpy(rowStart_, &head, sizeof head);
    arena_->Commit(FieldsOf(rowStart_) + length);
    handles_.push_back(reinterpret_cast<Handle>(rowStart_));
}

std::size_t FlightList::MemoryBytes() const {
    return arena_->Bytes() + HandleBytes();
}

}  // namespace orlo
