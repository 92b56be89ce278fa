#include "forms/Layout.h"

#include <algorithm>
#include <utility>

#include "forms/Form.h"

namespace orlo {

LayoutItem WithButton(Control& field, Button& button) {
    LayoutItem item(field);
    item.button = &button;
    return item;
}

LayoutItem Holding(Control& container, Layout inside) {
    LayoutItem item(container);
    item.inside.push_back(std::move(inside));
    return item;
}

LayoutRow FieldRow(std::initializer_list<LayoutItem> items) {
    return {RowKind::Fields, items, {}, false};
}

LayoutRow WideRow(LayoutItem item) {
    return {RowKind::Wide, {std::move(item)}, {}, false};
}

LayoutRow FillingRow(LayoutItem item) {
    return {RowKind::Wide, {std::move(item)}, {}, true};
}

LayoutRow TitleRow(Label& label) {
    return {RowKind::Title, {label}, {}, false};
}

LayoutRow LeftRow(std::initializer_list<LayoutItem> items) {
    return {RowKind::Left, items, {}, false};
}

LayoutRow CentredRow(std::initializer_list<LayoutItem> items) {
    return {RowKind::Centre, items, {}, false};
}

LayoutRow RightRow(std::initializer_list<LayoutItem> items) {
    return {RowKind::Right, items, {}, false};
}

LayoutRow PaneRow(std::initializer_list<Layout> panes) {
    return {RowKind::Panes, {}, panes, std::any_of(panes.begin(), panes.end(), Fills)};
}

LayoutRow TurnRow(std::initializer_list<LayoutItem> panes) {
    return {RowKind::Turns, panes, {}, true};
}

bool Fills(const Layout& layout) {
    return std::any_of(layout.rows.begin(), layout.rows.end(),
                       [](const LayoutRow& row) { return row.fills; });
}

Label* BroughtLabel(const Control& control) {
    using enum ControlKind;
    const bool brings = control.kind == TextBox || control.kind == ComboBox || control.kind == ListView ||
                        control.kind == TreeView;
    return brings ? LabelOf(control) : nullptr;
}

bool IsLineField(const Control& control) {
    if (control.kind == ControlKind::ComboBox) return true;
    return control.kind == ControlKind::TextBox &&
           static_cast<const TextBox&>(control).style == TextBoxStyle::SingleLine;
}

}  // namespace orlo
