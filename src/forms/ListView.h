#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/PlaceIndex.h"
#include "forms/Control.h"
#include "forms/PackedFields.h"
#include "forms/RowSource.h"

namespace orlo {

struct ListColumn {
    std::string key;
    std::string caption;
};

// Rows that are displayed one after the other.
struct PositionRange {
    std::int32_t first = 0;
    std::int32_t last = 0;  // included
};

// What is added as one row.
struct ListRow {
    std::string key;  // may be empty; a key that stands already, case aside, is refused
    std::string tag;
    std::string toolTip;
    Colour colour = Colour::WindowText;
    std::vector<std::string> texts;  // one a column; missing ones are empty, further ones are dropped
};

// A list of rows with columns. A row's place (0, 1, ... in the order of adding) names it until it is removed;
// a place passed in must be that of an existing row. Sorting changes the displayed order and no place. The
// current row need not be selected.
//
// The rows are either kept here, packed in large pages, or all drawn from a source. Of a source's rows the
// list keeps no text: a row's place is its number in the source, its key "#" and that number; tag, tool tip
// and colour are what the source tells.
struct ListView : Control {
    ListView(Container in, std::string_view nameOf)
        : Control(ControlKind::ListView, in.form, in.parent, nameOf, "") {}

    std::vector<ListColumn> columns;
    // At the end; nothing when the key stands already.
    void AddColumn(std::string_view key, std::string_view text);
    // With its texts; nothing when it is missing. Where it was the sort column, the first column becomes
    // that.
    void RemoveColumn(std::string_view key);
    std::int32_t FindColumn(std::string_view key) const;  // -1 when missing

    std::int32_t Count() const { return static_cast<std::int32_t>(order_.size()); }
    void Reserve(std::int32_t rows);

    // Place of the new row, -1 when its key stands already. The first row added to an empty list becomes
    // current and selected. A sorted list takes the row in its sorted position, behind equal ones. -1, with
    // nothing changed, in a list drawn from a source.
    std::int32_t Add(const ListRow& row);
    // Replaces all rows by rows 0 to `rows` - 1 of the source, in that order or sorted where sorting is on.
    // Row 0 becomes current and the only one selected. The source must not be null; Clear lets it go.
    void ShowSource(std::shared_ptr<RowSource> source, std::int32_t rows);
    // Null in a list of other rows.
    RowSource* Source() const { return source_.get(); }
    // Adds the next row of the source, which must have it by now, behind all that were ever added, and places
    // it as Add does; -1, with nothing changed, in a list without a source.
    std::int32_t AddSourceRow();
    // To be called when texts of the source have changed; does not sort anew.
    void SourceChanged() { ++contentRevision; }
    // Where the current row goes, the one that takes its position becomes current, else the last, else none.
    // Many rows go in one pass, with the same outcome as one by one. A source stays even when its last row
    // went, and its places are never used again; without a source places start at 0 again when the last row
    // went.
    void Remove(std::int32_t place) { Remove(std::span(&place, 1)); }
    void Remove(std::span<const std::int32_t> places);
    void Clear();

    std::string Text(std::int32_t place, std::int32_t column) const;
    // The same, behind `out`.
    void AppendText(std::int32_t place, std::int32_t column, std::string& out) const;
    // Does not sort anew. Does nothing in a list with a source.
    void SetText(std::int32_t place, std::int32_t column, std::string_view text);
    std::string Key(std::int32_t place) const;
    // False, with nothing changed, when another row has the key, and for a row of a source.
    bool SetKey(std::int32_t place, std::string_view key);
    std::string Tag(std::int32_t place) const;
    std::string ToolTip(std::int32_t place) const;
    Colour RowColour(std::int32_t place) const;
    // Does nothing in a list with a source.
    void SetRowColour(std::int32_t place, Colour colourOf);
    std::int32_t FindKey(std::string_view key) const;  // -1 when missing

    // Displayed positions, 0 to Count() - 1, and places.
    std::int32_t PlaceAt(std::int32_t position) const { return order_[static_cast<std::size_t>(position)]; }
    std::int32_t PositionOf(std::int32_t place) const;  // a search through all; -1 when missing

    bool Selected(std::int32_t place) const { return Slot(place).selected; }
    void Select(std::int32_t place, bool on);
    void SelectAll(bool on);
    // Positions beyond the rows are passed over.
    void SelectRanges(std::span<const PositionRange> ranges, bool on);
    void SelectOnly(std::span<const PositionRange> ranges);  // and nothing else
    void SelectCurrentOnly();                                // the current row, where there is one
    std::vector<std::int32_t> SelectedPlaces() const;        // in displayed order
    std::vector<PositionRange> SelectedRanges() const;       // in displayed order, none next to another
    std::int32_t current = -1;                               // place, -1 for none

    bool sorted = false;  // while it is off, added rows go to the end
    std::int32_t sortColumn = 0;
    bool ascending = true;
    // By displayed text, case folded; equal ones keep their order in both directions. Switches sorting on.
    void Sort();
    // A click on the head of a column: where the list is sorted by that column, its direction flips; else the
    // list is sorted by it, ascending.
    void SortByColumn(std::int32_t column);
    void SwitchSorting(bool on);  // off: the order stays; on: sorts by the column chosen last
    void ForgetSorting();         // for rows to come: they stay as they are added, until a column is clicked

    // The captions of the columns and the selected rows in displayed order, as a screen shows them: a line
    // each, with TAB between the columns and CR LF at the end; a TAB or line break inside a text becomes a
    // blank. Empty without a selection.
    std::string SelectedText() const;

    std::string emptyHint;                             // drawn in the list while it has no rows
    std::map<std::string, std::int32_t> columnWidths;  // those that the user chose, by column key
    bool colourMarks =
        false;  // a red or blue row has a small mark in front, so that not the colour alone tells
    // The first column holds long texts, and the rows come while the window is open: the list asks for room
    // for them from the start.
    bool wide = false;
    bool ensureVisibleRequest = false;  // of the current row; taken once by the front end
    std::int64_t contentRevision = 0;   // counts changes of columns, rows, texts and colours
    std::int64_t orderRevision = 0;
    std::int64_t selectionRevision = 0;

    // Bytes that the rows take, with dead bytes and spare room, without the source.
    std::size_t MemoryBytes() const;

  private:
    struct RowSlot {
        char* data = nullptr;  // key, tag, tool tip and texts, packed; null for a row of a source
        std::uint32_t length = 0;
        Colour colour = Colour::WindowText;
        bool selected = false;
        bool stands = false;
    };
    RowSlot& Slot(std::int32_t place) { return slots_[static_cast<std::size_t>(place)]; }
    const RowSlot& Slot(std::int32_t place) const { return slots_[static_cast<std::size_t>(place)]; }
    std::string_view Row(std::int32_t place) const { return {Slot(place).data, Slot(place).length}; }
    std::string_view Field(std::int32_t place, std::size_t field) const { return FieldAt(Row(place), field); }
    // The place that has the key: an earlier one, else `place`, which has it from now on.
    std::int32_t AddKey(std::string_view key, std::int32_t place);
    void RemoveKey(std::int32_t place);
    void Enter(std::int32_t place);
    std::size_t SortedPosition(std::int32_t place) const;
    void SetField(std::int32_t place, std::size_t field, std::string_view text);
    void ReplaceRow(std::int32_t place, std::string_view row);
    void DropDeadBytes();

    std::shared_ptr<RowSource> source_;
    BytePages pages_;
    std::size_t liveBytes_ = 0;
    std::size_t deadBytes_ = 0;
    std::vector<RowSlot> slots_;
    std::vector<std::int32_t> order_;
    PlaceIndex keys_;
    std::string scratch_;  // the row being packed
};

}  // namespace orlo
