#include "forms/ListView.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

// Fields of a packed row.
constexpr std::size_t kKeyField = 0;
constexpr std::size_t kTagField = 1;
constexpr std::size_t kToolTipField = 2;
constexpr std::size_t kFirstText = 3;

constexpr std::size_t kDeadBytesKept = 1024 * 1024;

void AppendCell(const std::string& cell, bool last, std::string& out) {
    std::string shown = ToScreen(cell);
    for (char& character : shown) {
        if (character == '\t' || character == '\r' || character == '\n') character = ' ';
    }
    out.append(shown).append(last ? "\r\n" : "\t");
}

}  // namespace

void ListView::AddColumn(std::string_view key, std::string_view text) {
    if (FindColumn(key) >= 0) return;
    columns.push_back({std::string(key), std::string(text)});
    ++contentRevision;
}

void ListView::RemoveColumn(std::string_view key) {
    const std::int32_t column = FindColumn(key);
    if (column < 0) return;
    columns.erase(columns.begin() + column);
    if (sortColumn == column) sortColumn = 0;
    if (sortColumn > column) --sortColumn;
    ++contentRevision;
    if (source_ != nullptr) return;
    const std::size_t dropped = kFirstText + static_cast<std::size_t>(column);
    for (const std::int32_t place : order_) {
        std::string row;
        PackedReader reader(Row(place));
        for (std::size_t field = 0; !reader.AtEnd(); ++field) {
            const std::string_view text = reader.Next();
            if (field != dropped) AppendField(row, text);
        }
        ReplaceRow(place, row);
    }
}

std::int32_t ListView::FindColumn(std::string_view key) const {
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const ListColumn& column) { return EqualNoCase(column.key, key); });
    return found == columns.end() ? -1 : static_cast<std::int32_t>(found - columns.begin());
}

void ListView::Reserve(std::int32_t rows) {
    slots_.reserve(static_cast<std::size_t>(rows));
    order_.reserve(static_cast<std::size_t>(rows));
}

std::int32_t ListView::Add(const ListRow& row) {
    if (source_ != nullptr) return -1;
    const auto place = static_cast<std::int32_t>(slots_.size());
    if (!row.key.empty() && AddKey(row.key, place) != place) return -1;
    scratch_.clear();
    AppendField(scratch_, row.key);
    AppendField(scratch_, row.tag);
    AppendField(scratch_, row.toolTip);
    const std::size_t textCount = std::min(row.texts.size(), columns.size());
    for (std::size_t i = 0; i < textCount; ++i) AppendField(scratch_, row.texts[i]);
    slots_.push_back(
        {pages_.Add(scratch_), static_cast<std::uint32_t>(scratch_.size()), row.colour, false, true});
    liveBytes_ += scratch_.size();
    Enter(place);
    return place;
}

void ListView::ShowSource(std::shared_ptr<RowSource> source, std::int32_t rows) {
    Clear();
    source_ = std::move(source);
    if (rows <= 0) return;
    RowSlot slot;
    slot.stands = true;
    slots_.assign(static_cast<std::size_t>(rows), slot);
    order_.resize(slots_.size());
    std::iota(order_.begin(), order_.end(), 0);
    current = 0;
    Slot(0).selected = true;
    if (sorted) Sort();
}

std::int32_t ListView::AddSourceRow() {
    if (source_ == nullptr) return -1;
    const auto place = static_cast<std::int32_t>(slots_.size());
    slots_.emplace_back().stands = true;
    Enter(place);
    return place;
}

// Puts a new row into the displayed order.
void ListView::Enter(std::int32_t place) {
    const std::size_t position = sorted ? SortedPosition(place) : order_.size();
    order_.insert(order_.begin() + static_cast<std::ptrdiff_t>(position), place);
    if (order_.size() == 1) {
        current = place;
        Select(place, true);
    }
    ++contentRevision;
    ++orderRevision;
}

void ListView::Remove(std::span<const std::int32_t> places) {
    std::size_t removedCount = 0;
    for (const std::int32_t place : places) {
        RowSlot& slot = Slot(place);
        if (!slot.stands) continue;
        if (source_ == nullptr) RemoveKey(place);
        liveBytes_ -= slot.length;
        deadBytes_ += slot.length;
        slot = RowSlot();
        ++removedCount;
    }
    if (removedCount == 0) return;
    if (removedCount == order_.size() && source_ == nullptr) {
        Clear();
        return;
    }
    const auto gone = [this](std::int32_t place) { return !Slot(place).stands; };
    const bool currentGone = current >= 0 && gone(current);
    const auto at = std::find(order_.begin(), order_.end(), current);
    const auto next = currentGone ? std::find_if_not(at, order_.end(), gone) : at;
    const std::int32_t successor = next == order_.end() ? -1 : *next;
    std::erase_if(order_, gone);
    if (currentGone) current = successor >= 0 || order_.empty() ? successor : order_.back();
    DropDeadBytes();
    ++contentRevision;
    ++orderRevision;
    ++selectionRevision;
}

void ListView::Clear() {
    source_.reset();
    pages_.Clear();
    liveBytes_ = deadBytes_ = 0;
    slots_ = {};
    order_ = {};
    keys_.Clear();
    current = -1;
    ++contentRevision;
    ++orderRevision;
    ++selectionRevision;
}

std::string ListView::Text(std::int32_t place, std::int32_t column) const {
    std::string text;
    AppendText(place, column, text);
    return text;
}

void ListView::AppendText(std::int32_t place, std::int32_t column, std::string& out) const {
    if (source_ == nullptr) {
        out.append(Field(place, kFirstText + static_cast<std::size_t>(column)));
    } else if (static_cast<std::size_t>(column) < columns.size()) {
        source_->AppendText(place, column, out);
    }
}

std::string ListView::Key(std::int32_t place) const {
    return source_ != nullptr ? Concat('#', place) : std::string(Field(place, kKeyField));
}

std::string ListView::Tag(std::int32_t place) const {
    return source_ != nullptr ? source_->Facts(place).tag : std::string(Field(place, kTagField));
}

std::string ListView::ToolTip(std::int32_t place) const {
    return source_ != nullptr ? source_->Facts(place).toolTip : std::string(Field(place, kToolTipField));
}

Colour ListView::RowColour(std::int32_t place) const {
    return source_ != nullptr ? source_->Facts(place).colour : Slot(place).colour;
}

void ListView::SetText(std::int32_t place, std::int32_t column, std::string_view text) {
    if (source_ == nullptr) SetField(place, kFirstText + static_cast<std::size_t>(column), text);
}

bool ListView::SetKey(std::int32_t place, std::string_view key) {
    const std::int32_t holder = key.empty() ? -1 : FindKey(key);
    if (source_ != nullptr || (holder >= 0 && holder != place)) return false;
    RemoveKey(place);
    SetField(place, kKeyField, key);
    if (!key.empty()) AddKey(Field(place, kKeyField), place);
    return true;
}

std::int32_t ListView::AddKey(std::string_view key, std::int32_t place) {
    return keys_.FindOrAdd(HashNoCase(key), place,
                           [&](std::int32_t at) { return EqualNoCase(Field(at, kKeyField), key); });
}

// The row must still stand with its key.
void ListView::RemoveKey(std::int32_t place) {
    const std::string_view key = Field(place, kKeyField);
    if (!key.empty()) keys_.Remove(HashNoCase(key), [place](std::int32_t at) { return at == place; });
}

void ListView::SetRowColour(std::int32_t place, Colour colourOf) {
    if (source_ != nullptr) return;
    Slot(place).colour = colourOf;
    ++contentRevision;
}

std::int32_t ListView::FindKey(std::string_view key) const {
    if (key.empty()) return -1;
    if (source_ == nullptr) {
        return keys_.Find(HashNoCase(key),
                          [&](std::int32_t at) { return EqualNoCase(Field(at, kKeyField), key); });
    }
    const auto row = ParseWholeNumber(key.substr(1));
    const bool stands =
        row && *row >= 0 && static_cast<std::size_t>(*row) < slots_.size() && Slot(*row).stands;
    return stands && Key(*row) == key ? *row : -1;
}

std::int32_t ListView::PositionOf(std::int32_t place) const {
    const auto found = std::find(order_.begin(), order_.end(), place);
    return found == order_.end() ? -1 : static_cast<std::int32_t>(found - order_.begin());
}

void ListView::Select(std::int32_t place, bool on) {
    Slot(place).selected = on;
    ++selectionRevision;
}

void ListView::SelectAll(bool on) {
    for (const std::int32_t place : order_) Slot(place).selected = on;
    ++selectionRevision;
}

void ListView::SelectRanges(std::span<const PositionRange> ranges, bool on) {
    for (const PositionRange& range : ranges) {
        const std::int32_t last = std::min(range.last, Count() - 1);
        for (std::int32_t at = std::max(range.first, 0); at <= last; ++at) Slot(PlaceAt(at)).selected = on;
    }
    ++selectionRevision;
}

void ListView::SelectOnly(std::span<const PositionRange> ranges) {
    SelectAll(false);
    SelectRanges(ranges, true);
}

void ListView::SelectCurrentOnly() {
    SelectAll(false);
    if (current >= 0) Select(current, true);
}

std::vector<PositionRange> ListView::SelectedRanges() const {
    std::vector<PositionRange> ranges;
    bool open = false;
    for (std::int32_t at = 0; at < Count(); ++at) {
        const bool selected = Selected(PlaceAt(at));
        if (selected && !open) ranges.push_back({at, at});
        if (selected) ranges.back().last = at;
        open = selected;
    }
    return ranges;
}

std::vector<std::int32_t> ListView::SelectedPlaces() const {
    std::vector<std::int32_t> places;
    for (const std::int32_t place : order_) {
        if (Slot(place).selected) places.push_back(place);
    }
    return places;
}

std::string ListView::SelectedText() const {
    const std::vector<std::int32_t> places = SelectedPlaces();
    if (places.empty()) return {};
    std::string text;
    const auto count = static_cast<std::int32_t>(columns.size());
    for (std::int32_t i = 0; i < count; ++i)
        AppendCell(columns[static_cast<std::size_t>(i)].caption, i + 1 == count, text);
    for (const std::int32_t place : places) {
        for (std::int32_t i = 0; i < count; ++i) AppendCell(Text(place, i), i + 1 == count, text);
    }
    return text;
}

std::size_t ListView::MemoryBytes() const {
    return pages_.Bytes() + slots_.capacity() * sizeof(RowSlot) + order_.capacity() * sizeof(std::int32_t) +
           keys_.Bytes();
}

// A text of the same length, as most changes of times, is written over the old one.
void ListView::SetField(std::int32_t place, std::size_t field, std::string_view text) {
    ++contentRevision;
    const std::string_view old = FieldAt(Row(place), field);
    if (!old.empty() && old.size() == text.size()) {
        text.copy(Slot(place).data + (old.data() - Slot(place).data), text.size());
        return;
    }
    std::string row;
    PackedReader reader(Row(place));
    for (std::size_t i = 0; i <= field || !reader.AtEnd(); ++i) {
        const std::string_view kept = reader.Next();
        AppendField(row, i == field ? text : kept);
    }
    ReplaceRow(place, row);
}

void ListView::ReplaceRow(std::int32_t place, std::string_view row) {
    RowSlot& slot = Slot(place);
    liveBytes_ += row.size();
    liveBytes_ -= slot.length;
    deadBytes_ += slot.length;
    slot.data = pages_.Add(row);
    slot.length = static_cast<std::uint32_t>(row.size());
    DropDeadBytes();
}

void ListView::DropDeadBytes() {
    if (deadBytes_ < kDeadBytesKept || deadBytes_ < liveBytes_) return;
    BytePages fresh;
    for (RowSlot& slot : slots_) {
        if (slot.stands) slot.data = fresh.Add({slot.data, slot.length});
    }
    pages_ = std::move(fresh);
    deadBytes_ = 0;
}

}  // namespace orlo
