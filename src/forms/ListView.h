#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "forms/Control.h"

namespace orlo {

struct ListColumn {
    std::string key;
    std::string caption;
};

// What is added as one row.
struct ListRow {
    std::string key;  // may be empty; a key that stands already is refused
    std::string tag;
    std::string toolTip;
    Colour colour = Colour::WindowText;
    std::vector<std::string> texts;  // one a column, missing ones are empty
};

// A list of rows with columns. Rows are kept packed, one buffer for all; a row's place (0, 1, ... in the
// order of adding) names it until it is removed. Sorting permutes the displayed order and never moves a row.
// The current row and the selection are two things.
struct ListView : Control {
    ListView(Container in, std::string_view nameOf)
        : Control(ControlKind::ListView, in.form, in.parent, nameOf, "") {}

    std::vector<ListColumn> columns;
    void AddColumn(std::string_view key, std::string_view text);
    void RemoveColumn(std::string_view key);              // nothing when it is missing
    std::int32_t FindColumn(std::string_view key) const;  // -1 when missing

    std::int32_t Count() const { return static_cast<std::int32_t>(order_.size()); }

    // Place of the new row, -1 when its key stands already. The first row added to an empty list becomes
    // current and selected. A sorted list takes the row in its sorted position.
    std::int32_t Add(const ListRow& row);
    void Remove(
        std::int32_t place);  // the current row becomes the one now displayed there, else the last, else none
    void Clear();

    std::string_view Text(std::int32_t place, std::int32_t column) const;
    void SetText(std::int32_t place, std::int32_t column, std::string_view text);  // does not sort anew
    std::string_view Key(std::int32_t place) const;
    void SetKey(std::int32_t place, std::string_view key);
    std::string_view Tag(std::int32_t place) const;
    std::string_view ToolTip(std::int32_t place) const;
    Colour RowColour(std::int32_t place) const;
    void SetRowColour(std::int32_t place, Colour colourOf);
    std::int32_t FindKey(std::string_view key) const;  // -1 when missing

    // Displayed positions, 0 to Count() - 1, and places.
    std::int32_t PlaceAt(std::int32_t position) const { return order_[static_cast<std::size_t>(position)]; }
    std::int32_t PositionOf(std::int32_t place) const;

    bool Selected(std::int32_t place) const;
    void Select(std::int32_t place, bool on);
    void SelectAll(bool on);
    std::vector<std::int32_t> SelectedPlaces() const;  // in displayed order
    std::int32_t current = -1;                         // place, -1 for none

    bool sorted = false;  // the switch: while off, rows stand in the order of adding
    std::int32_t sortColumn = 0;
    bool ascending = true;
    void
    Sort();  // by displayed text, case folded, equal ones keep their order in both directions; sets `sorted`
    void SwitchSorting(bool on);  // off: further rows go to the end; on: sorts by the column chosen last

    bool ensureVisibleRequest = false;  // of the current row; taken once by the front end
    std::int64_t contentRevision = 0;
    std::int64_t orderRevision = 0;
    std::int64_t selectionRevision = 0;

  private:
    struct RowSlot {
        std::uint64_t offset = 0;  // of the row's packed texts in buffer_
        std::uint32_t length = 0;
        Colour colour = Colour::WindowText;
        bool selected = false;
        bool removed = false;
    };
    std::string buffer_;
    std::vector<RowSlot> slots_;
    std::vector<std::int32_t> order_;
    std::unordered_map<std::string, std::int32_t> keys_;
};

}  // namespace orlo
