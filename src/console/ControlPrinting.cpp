#include "console/ControlPrinting.h"

#include <optional>
#include <utility>

#include "console/ScriptText.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "forms/Chart.h"

namespace orlo {
namespace {

std::string_view YesNo(bool value) {
    return value ? "yes" : "no";
}
std::string_view OnOff(bool value) {
    return value ? "on" : "off";
}

template <typename Type>
const Type& As(const Control& control) {
    return static_cast<const Type&>(control);
}

void PrintList(std::ostream& out, const ListView& list) {
    for (std::size_t i = 0; i < list.columns.size(); ++i)
        out << (i == 0 ? "" : "\t") << Printed(list.columns[i].caption);
    out << '\n';
    for (std::int32_t position = 0; position < list.Count(); ++position) {
        for (std::size_t i = 0; i < list.columns.size(); ++i) {
            out << (i == 0 ? "" : "\t")
                << Printed(list.Text(list.PlaceAt(position), static_cast<std::int32_t>(i)));
        }
        out << '\n';
    }
}

void PrintTree(std::ostream& out, const TreeView& tree) {
    for (const std::int32_t place : tree.DisplayOrder()) {
        const TreeNode& node = tree.nodes[static_cast<std::size_t>(place)];
        for (std::int32_t parent = node.parent; parent >= 0;
             parent = tree.nodes[static_cast<std::size_t>(parent)].parent) {
            out << "  ";
        }
        const std::string_view mark = node.checked ? "[x]" : node.colour == Colour::Gray ? "[-]" : "[ ]";
        out << mark << ' ' << Printed(node.text) << '\t' << ColourWord(node.colour) << '\t'
            << Printed(node.tag) << '\n';
    }
}

void PrintChart(std::ostream& out, const Chart& chart) {
    const std::string table = chart.Content().Table("\n");
    for (const std::string_view line : SplitLines(table)) {
        std::string_view separator;
        for (const std::string_view field : SplitText(line, '\t'))
            out << std::exchange(separator, "\t") << Printed(field);
        out << '\n';
    }
}

std::optional<bool> CheckState(const Control& control) {
    switch (control.kind) {
        case ControlKind::CheckBox:
            return As<CheckBox>(control).checked;
        case ControlKind::OptionButton:
            return As<OptionButton>(control).checked;
        case ControlKind::MenuEntry:
            if (As<MenuEntry>(control).checkable) return As<MenuEntry>(control).checked;
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

std::optional<std::string> TextOf(const Control& control) {
    switch (control.kind) {
        case ControlKind::TextBox:
            return As<TextBox>(control).text;
        case ControlKind::ComboBox:
            return As<ComboBox>(control).Text();
        case ControlKind::StatusBar:
            return As<StatusBar>(control).text;
        case ControlKind::TabStrip:
            return As<TabStrip>(control).selectedKey;
        default:
            return std::nullopt;
    }
}

std::string Joined(const std::vector<std::int32_t>& numbers) {
    std::string text;
    for (const std::int32_t number : numbers) text.append(Concat(text.empty() ? "" : ",", number));
    return text;
}

void PrintListProperties(std::ostream& out, const ListView& list) {
    out << "index=" << (list.current < 0 ? -1 : list.PositionOf(list.current)) << '\n';
    std::vector<std::int32_t> positions;
    for (const PositionRange& range : list.SelectedRanges()) {
        for (std::int32_t at = range.first; at <= range.last; ++at) positions.push_back(at);
    }
    out << "selection=" << Joined(positions) << '\n';
}

}  // namespace

void PrintControl(std::ostream& out, const Control& control) {
    if (control.kind == ControlKind::ListView) return PrintList(out, As<ListView>(control));
    if (control.kind == ControlKind::TreeView) return PrintTree(out, As<TreeView>(control));
    if (control.kind == ControlKind::Chart) return PrintChart(out, As<Chart>(control));
    if (const auto checked = CheckState(control)) {
        out << OnOff(*checked) << '\n';
    } else if (const auto text = TextOf(control)) {
        out << Printed(*text) << '\n';
    } else if (control.kind == ControlKind::ProgressBar) {
        out << As<ProgressBar>(control).value << '/' << As<ProgressBar>(control).maximum << '\n';
    } else {
        out << Printed(control.caption) << '\n';
    }
}

void PrintRows(std::ostream& out, const ListView& list) {
    for (std::int32_t position = 0; position < list.Count(); ++position) {
        const std::int32_t place = list.PlaceAt(position);
        out << (list.Selected(place) ? '*' : '-') << '\t' << (list.current == place ? '>' : '-') << '\t'
            << ColourWord(list.RowColour(place)) << '\t' << Printed(list.Key(place)) << '\t'
            << Printed(list.Tag(place)) << '\t' << Printed(list.ToolTip(place)) << '\n';
    }
}

void PrintEntries(std::ostream& out, const ComboBox& combo) {
    for (const ComboEntry& entry : combo.entries)
        out << entry.itemData << '\t' << Printed(entry.text) << '\n';
}

void PrintProperties(std::ostream& out, const Control& control) {
    if (!control.caption.empty()) out << "caption=" << Printed(control.caption) << '\n';
    if (const auto text = TextOf(control)) out << "text=" << Printed(*text) << '\n';
    out << "enabled=" << YesNo(control.EffectivelyEnabled()) << '\n';
    out << "visible=" << YesNo(control.EffectivelyVisible()) << '\n';
    if (const auto checked = CheckState(control)) out << "checked=" << YesNo(*checked) << '\n';
    out << "colour=" << ColourWord(control.colour) << '\n';
    if (!control.tag.empty()) out << "tag=" << Printed(control.tag) << '\n';
    if (control.kind == ControlKind::ComboBox) out << "index=" << As<ComboBox>(control).index << '\n';
    if (control.kind == ControlKind::ListView) PrintListProperties(out, As<ListView>(control));
    if (control.kind == ControlKind::TextBox) {
        out << "selection=" << (As<TextBox>(control).selectAllRequest ? "all" : "none") << '\n';
    }
}

void PrintProperties(std::ostream& out, const Form& form) {
    out << "caption=" << Printed(form.caption) << '\n';
    out << "enabled=" << YesNo(form.enabled) << '\n';
    out << "pointer=" << (form.pointer == PointerShape::Hourglass ? "hourglass" : "normal") << '\n';
    if (form.focus != nullptr) out << "focus=" << form.focus->name << '\n';
    if (form.defaultButton != nullptr) out << "default=" << form.defaultButton->name << '\n';
    if (form.cancelButton != nullptr) out << "cancel=" << form.cancelButton->name << '\n';
}

void PrintMenu(std::ostream& out, const MenuEntry& menu) {
    for (const Control* control : menu.form.Controls()) {
        if (control->parent == &menu && control->visible)
            out << control->name << '\t' << Printed(control->caption) << '\n';
    }
}

}  // namespace orlo
