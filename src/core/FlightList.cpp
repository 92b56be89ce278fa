#include "core/FlightList.h"

#include <algorithm>
#include <cstring>
#include <deque>

#include "core/FlightArena.h"
#include "core/FlightRow.h"

namespace orlo {
namespace {

// A list with more is copied into one, so that a run of small changes doesn't cost a chunk each.
constexpr std::size_t kMostArenas = 16;

// Bytes of all fields, each with a separator behind it.
std::size_t LengthOf(const LentFlight& flight) {
    std::size_t length = flight.ACNumber.size() + flight.TailNumber.size() + flight.Percent.size() +
                         flight.Period.size() + flight.FlightType.size() + kFlightFields;
    for (const LegView& leg : flight.Legs) {
        length += leg.DepartTime.size() + (leg.FixedETA ? 1 : 0) + leg.ETA.size() + leg.FlightLevel.size() +
                  leg.NumberMode.size() + leg.FlightNumber.size() + leg.Destination.size() + kLegFields;
    }
    return length;
}

template <typename Bytes>
void CopyEnds(std::string_view text, char* out) {
    Bytes first, last;
    std::memcpy(&first, text.data(), sizeof(Bytes));
    std::memcpy(&last, text.data() + text.size() - sizeof(Bytes), sizeof(Bytes));
    std::memcpy(out, &first, sizeof(Bytes));
    std::memcpy(out + text.size() - sizeof(Bytes), &last, sizeof(Bytes));
}

// Most fields are so short that a call for each would cost more than the copy.
void WriteField(std::string_view field, char*& out) {
    const std::size_t size = field.size();
    if (size > 16) {
        std::memcpy(out, field.data(), size);
    } else if (size >= 8) {
        CopyEnds<std::uint64_t>(field, out);
    } else if (size >= 4) {
        CopyEnds<std::uint32_t>(field, out);
    } else {
        for (std::size_t i = 0; i < size; ++i) out[i] = field[i];
    }
    out += size;
    *out++ = kRowSeparator;
}

void WriteFields(const LentFlight& flight, char* out) {
    for (const std::string_view field :
         {flight.ACNumber, flight.TailNumber, flight.Percent, flight.Period, flight.FlightType}) {
        WriteField(field, out);
    }
    for (const LegView& leg : flight.Legs) {
        WriteField(leg.DepartTime, out);
        if (leg.FixedETA) *out++ = kFixedMark;
        for (const std::string_view field :
             {leg.ETA, leg.FlightLevel, leg.NumberMode, leg.FlightNumber, leg.Destination}) {
            WriteField(field, out);
        }
    }
}

// Counts separators and carriage returns in the fields. The count of a piece fits a byte, which makes vector
// code.
std::size_t CountLineEnds(const char* fields, std::size_t length) {
    constexpr std::size_t kPiece = 128;
    std::size_t count = 0;
    for (; length > 0; fields += std::min(length, kPiece), length -= std::min(length, kPiece)) {
        std::uint8_t found = 0;
        for (std::size_t i = 0; i < std::min(length, kPiece); ++i) {
            found = static_cast<std::uint8_t>(found + (fields[i] == kRowSeparator) + (fields[i] == '\r'));
        }
        count += found;
    }
    return count;
}

std::string WithoutLineEnds(std::string_view field) {
    std::string text(field);
    std::replace_if(
        text.begin(), text.end(), [](char byte) { return byte == kRowSeparator || byte == '\r'; }, ' ');
    return text;
}

// Writes the fields of a flight in which a text holds a line end.
void WriteCleaned(const LentFlight& flight, char* out) {
    std::deque<std::string> texts;
    const auto clean = [&](std::string_view& field) { field = texts.emplace_back(WithoutLineEnds(field)); };
    LentFlight cleaned = flight;
    for (std::string_view* field :
         {&cleaned.ACNumber, &cleaned.TailNumber, &cleaned.Percent, &cleaned.Period, &cleaned.FlightType}) {
        clean(*field);
    }
    for (LegView& leg : cleaned.Legs) {
        for (std::string_view* field : {&leg.DepartTime, &leg.ETA, &leg.FlightLevel, &leg.NumberMode,
                                        &leg.FlightNumber, &leg.Destination}) {
            clean(*field);
        }
    }
    WriteFields(cleaned, out);
}

// Copies the text with each byte `from` as `to`. Every byte is written, which makes vector code.
void ReplaceEach(std::string_view text, char from, char to, char* out) {
    const char* const bytes = text.data();
    const std::size_t size = text.size();
    for (std::size_t i = 0; i < size; ++i) out[i] = bytes[i] == from ? to : bytes[i];
}

// Puts the head in front of the fields, which stand already, and takes the row.
char* CommitRow(FlightArena& arena, char* row, std::size_t legCount, std::size_t length) {
    const RowHead head{static_cast<std::uint32_t>(legCount), static_cast<std::uint32_t>(length)};
    std::memcpy(row, &head, sizeof head);
    arena.Commit(RowBytes(length));
    return row;
}

char* WriteRow(const LentFlight& flight, FlightArena& arena) {
    const std::size_t length = LengthOf(flight);
    char* row = arena.Reserve(RowBytes(length));
    char* fields = row + sizeof(RowHead);
    WriteFields(flight, fields);
    // A separator inside a field would shift all fields behind it, and a carriage return would end the line
    // once it is written.
    if (CountLineEnds(fields, length) != kFlightFields + kLegFields * flight.Legs.size()) {
        WriteCleaned(flight, fields);
    }
    return CommitRow(arena, row, flight.Legs.size(), length - 1);  // the last separator is none of the row
}

}  // namespace

std::string_view FlightList::FieldsOf(Handle handle, std::uint32_t& legCount) {
    const auto* row = reinterpret_cast<const char*>(handle & ~kRemovedBit);
    RowHead head;
    std::memcpy(&head, row, sizeof head);
    legCount = head.legCount;
    return {row + sizeof head, head.length};
}

std::size_t FlightList::BytesOf(Handle handle) {
    std::uint32_t legCount = 0;
    return RowBytes(FieldsOf(handle, legCount).size());
}

// The Removed mark comes along.
FlightList::Handle FlightList::CopyRow(Handle handle, FlightArena& arena) {
    const std::size_t bytes = BytesOf(handle);
    char* row = arena.Reserve(bytes);
    std::memcpy(row, reinterpret_cast<const char*>(handle & ~kRemovedBit), bytes);
    arena.Commit(bytes);
    return reinterpret_cast<Handle>(row) | (handle & kRemovedBit);
}

FlightView FlightList::At(std::int32_t index) const {
    std::uint32_t legCount = 0;
    const std::string_view row = FieldsOf(handles_[static_cast<std::size_t>(index)], legCount);
    RowReader reader(row);
    FlightView flight;
    flight.ACNumber = reader.Next();
    flight.TailNumber = reader.Next();
    flight.Percent = reader.Next();
    flight.Period = reader.Next();
    flight.FlightType = reader.Next();
    flight.LegCount = static_cast<std::int32_t>(legCount);
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

void FlightList::WriteLine(std::int32_t index, std::string& out) const {
    std::uint32_t legCount = 0;
    const std::string_view row = FieldsOf(handles_[static_cast<std::size_t>(index)], legCount);
    out.resize(out.size() + row.size());
    ReplaceEach(row, kRowSeparator, ',', out.data() + out.size() - row.size());
}

std::string FlightList::Line(std::int32_t index) const {
    std::string line;
    WriteLine(index, line);
    return line;
}

void FlightList::SetRemoved(std::int32_t index, bool removed) {
    Handle& handle = handles_[static_cast<std::size_t>(index)];
    handle = removed ? handle | kRemovedBit : handle & ~kRemovedBit;
}

// Where new rows go: an arena that no other list holds.
FlightArena& FlightList::OwnArena() {
    if (arenas_.empty() || arenas_.back().use_count() > 1) arenas_.push_back(std::make_shared<FlightArena>());
    return *arenas_.back();
}

void FlightList::Replace(std::int32_t index, const Flight& flight) {
    const auto row = reinterpret_cast<Handle>(WriteRow(LentFlight(flight), OwnArena()));
    Handle& handle = handles_[static_cast<std::size_t>(index)];
    liveBytes_ += BytesOf(row);
    liveBytes_ -= BytesOf(handle);
    handle = row;
    SetRemoved(index, flight.Removed);
    DropDeadRows();
}

void FlightList::Append(const Flight& flight) {
    Append(LentFlight(flight));
    SetRemoved(Count() - 1, flight.Removed);
}

void FlightList::Append(const LentFlight& flight) {
    handles_.push_back(0);  // room for the handle first, so that a failure leaves the list as it was
    try {
        handles_.back() = reinterpret_cast<Handle>(WriteRow(flight, OwnArena()));
    } catch (...) {
        handles_.pop_back();
        throw;
    }
    liveBytes_ += BytesOf(handles_.back());
    DropDeadRows();
}

void FlightList::AppendLine(std::string_view line, std::int32_t legCount) {
    FlightArena& arena = OwnArena();
    char* const row = arena.Reserve(RowBytes(line.size()));
    ReplaceEach(line, ',', kRowSeparator, row + sizeof(RowHead));
    handles_.push_back(
        reinterpret_cast<Handle>(CommitRow(arena, row, static_cast<std::size_t>(legCount), line.size())));
    liveBytes_ += RowBytes(line.size());
}

FlightList FlightList::Selection(std::span<const std::int32_t> places) const {
    FlightList list;
    list.arenas_ = arenas_;
    list.handles_.reserve(places.size());
    for (const std::int32_t place : places) {
        list.handles_.push_back(handles_[static_cast<std::size_t>(place)]);
        list.liveBytes_ += BytesOf(list.handles_.back());
    }
    return list;
}

void FlightList::Truncate(std::int32_t count) {
    if (count >= Count()) return;
    for (std::int32_t i = count; i < Count(); ++i)
        liveBytes_ -= BytesOf(handles_[static_cast<std::size_t>(i)]);
    handles_.resize(static_cast<std::size_t>(count));
    DropDeadRows();
}

std::size_t FlightList::HeldBytes() const {
    std::size_t bytes = 0;
    for (const auto& arena : arenas_) bytes += arena->UsedBytes();
    return bytes;
}

std::size_t FlightList::MemoryBytes() const {
    std::size_t bytes = HandleBytes();
    for (const auto& arena : arenas_) bytes += arena->TakenBytes();
    return bytes;
}

void FlightList::AddKept(std::int32_t index, Rewritten& rewritten) const {
    rewritten.handles.push_back(handles_[static_cast<std::size_t>(index)]);
    rewritten.keptBytes += BytesOf(rewritten.handles.back());
}

void FlightList::AddChanged(const LentFlight& flight, Rewritten& rewritten) {
    if (!rewritten.arena) rewritten.arena = std::make_shared<FlightArena>();
    const auto row = reinterpret_cast<Handle>(WriteRow(flight, *rewritten.arena));
    rewritten.handles.push_back(row);
    rewritten.newBytes += BytesOf(row);
}

void FlightList::Take(Rewritten rewritten) {
    if (!rewritten.arena) return;
    // Where less than half of the old memory stays in use, the list lets it go and copies the rows that stay.
    const bool leave = HeldBytes() > 2 * rewritten.keptBytes || arenas_.size() >= kMostArenas;
    for (std::size_t i = 0; i < handles_.size(); ++i) {
        Handle& handle = rewritten.handles[i];
        const bool kept = (handle & ~kRemovedBit) == (handles_[i] & ~kRemovedBit);
        if (kept && leave) handle = CopyRow(handle, *rewritten.arena);
        handle = (handle & ~kRemovedBit) | (handles_[i] & kRemovedBit);
    }
    Arenas arenas;
    if (!leave) arenas = arenas_;
    arenas.push_back(std::move(rewritten.arena));
    arenas_ = std::move(arenas);
    handles_ = std::move(rewritten.handles);
    liveBytes_ = rewritten.keptBytes + rewritten.newBytes;
}

// Copies all rows into new memory where the dead rows outweigh them.
void FlightList::DropDeadRows() {
    if (HeldBytes() <= 2 * liveBytes_ && arenas_.size() <= kMostArenas) return;
    Arenas arenas;
    if (!handles_.empty()) arenas.push_back(std::make_shared<FlightArena>());
    std::pmr::vector<Handle> handles = handles_;
    for (Handle& handle : handles) handle = CopyRow(handle, *arenas.back());
    handles_ = std::move(handles);
    arenas_ = std::move(arenas);
}

}  // namespace orlo
