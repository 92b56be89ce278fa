#pragma once

#include <initializer_list>
#include <vector>

#include "forms/Control.h"

namespace orlo {

struct Layout;

// One place in a row. A field, list or tree brings its label (LabelOf): beside a field of one line, above all
// else.
struct LayoutItem {
    LayoutItem(Control& controlOf);

    Control* control;
    Button* button = nullptr;    // stands behind the field, such as "Change..."
    std::vector<Layout> inside;  // one where the control is a frame or pane that holds others, else none
};

enum class RowKind {
    Fields,  // each in the next column; a frame among them has its title above the line of the others
    Wide,    // one control over all columns
    Title,   // the same, a label in large letters
    Left,    // a line of controls, each as wide as it needs to be, at this side or in the middle
    Centre,
    Right,
    Panes,  // layouts beside each other
    Turns,  // panes in one place, of which one at a time is visible
};

struct LayoutRow {
    RowKind kind = RowKind::Wide;
    std::vector<LayoutItem> items;
    std::vector<Layout> panes;  // of the kind Panes alone, instead of items
    bool fills = false;         // takes what height is left, with others that do
};

// How the controls of a form, or of a frame or pane in it, stand to one another: rows from top to bottom,
// without places and sizes, which are the front end's. The rows name every control but menu entries once, in
// the order of declaration; a label that a field brings isn't named.
struct Layout {
    std::vector<LayoutRow> rows;
    int columns = 1;  // of fields
    int share = 1;    // of the width, for a pane that fills: 2 gets twice what 1 gets
};

inline LayoutItem::LayoutItem(Control& controlOf) : control(&controlOf) {}

LayoutItem WithButton(Control& field, Button& button);
LayoutItem Holding(Control& container, Layout inside);

LayoutRow FieldRow(std::initializer_list<LayoutItem> items);
LayoutRow WideRow(LayoutItem item);
LayoutRow FillingRow(LayoutItem item);
LayoutRow TitleRow(Label& label);
LayoutRow LeftRow(std::initializer_list<LayoutItem> items);
LayoutRow CentredRow(std::initializer_list<LayoutItem> items);
LayoutRow RightRow(std::initializer_list<LayoutItem> items);
// Fills where one of the panes has a row that does, and then such panes share the width that is left, equally
// where they don't tell otherwise.
LayoutRow PaneRow(std::initializer_list<Layout> panes);
LayoutRow TurnRow(std::initializer_list<LayoutItem> panes);  // fills

// Whether one of its rows fills.
bool Fills(const Layout& layout);
// The label that the control brings into its place; null for none.
Label* BroughtLabel(const Control& control);
// A field of one line has its label beside it, all else above.
bool IsLineField(const Control& control);

}  // namespace orlo
