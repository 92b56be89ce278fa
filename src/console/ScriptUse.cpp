// The commands that use controls.

#include <algorithm>

#include "console/ControlPrinting.h"
#include "console/ScriptCommands.h"
#include "console/ScriptText.h"
#include "core/Number.h"
#include "core/Text.h"
#include "shell/UserHands.h"

namespace orlo {
namespace {

// Whether the script's word names the text, case aside. Words are UTF-8; a text can be in code page 1252.
bool IsNamed(std::string_view text, std::string_view word) {
    return EqualNoCase(text, word) || EqualNoCase(text, FromScreen(word));
}

// What the script's word types into the field.
std::string TypedText(const TextBox& field, const std::string& word) {
    const std::string text = FromScreen(word);
    return field.style == TextBoxStyle::SingleLine ? text : TypedLines(text);
}

// A pane behind another tab, which is a Picture, doesn't count as hidden.
bool IsHidden(const Control& control) {
    for (const Control* at = &control; at != nullptr; at = at->parent) {
        if (!at->visible && at->kind != ControlKind::Picture) return true;
    }
    return false;
}

bool ParseOnOff(const std::string& word) {
    if (EqualNoCase(word, "on")) return true;
    if (EqualNoCase(word, "off")) return false;
    throw ScriptEnd{Concat("'", word, "' is neither on nor off")};
}

EventKey KeyNamed(std::string_view word) {
    if (EqualNoCase(word, "Enter")) return kKeyEnter;
    if (EqualNoCase(word, "Escape")) return kKeyEscape;
    if (EqualNoCase(word, "Delete")) return kKeyDelete;
    return EqualNoCase(word, "Insert") ? kKeyInsert : kKeyOther;
}

std::int32_t RowOf(const ListView& list, std::string_view word) {
    const auto row = ParseWholeNumber(word);
    if (!row || *row < 0 || *row >= list.Count()) throw ScriptEnd{Concat(list.name, " has no row ", word)};
    return *row;
}

std::int32_t NodePlace(const TreeView& tree, std::string_view text) {
    for (const std::int32_t place : tree.DisplayOrder()) {
        const TreeNode& node = tree.nodes[static_cast<std::size_t>(place)];
        if (IsNamed(node.text, text) || IsNamed(node.key, text)) return place;
    }
    throw ScriptEnd{Concat(tree.name, " has no node '", text, "'")};
}

std::optional<std::int32_t> FindEntry(const ComboBox& combo, const std::string& word) {
    if (word.starts_with('#')) {
        const auto index = ParseWholeNumber(std::string_view(word).substr(1));
        if (index && *index >= 0 && *index < static_cast<std::int32_t>(combo.entries.size())) return *index;
    }
    for (std::size_t i = 0; i < combo.entries.size(); ++i) {
        if (combo.entries[i].text == word || combo.entries[i].text == FromScreen(word))
            return static_cast<std::int32_t>(i);
    }
    for (std::size_t i = 0; i < combo.entries.size(); ++i) {
        if (IsNamed(combo.entries[i].text, word)) return static_cast<std::int32_t>(i);
    }
    return std::nullopt;
}

}  // namespace

template <typename Type>
Type& ScriptCommands::FindAs(std::string_view name, ControlKind kind) const {
    Control& control = FindControl(name);
    if (control.kind != kind) throw ScriptEnd{Concat(control.name, " is no control of that kind")};
    return static_cast<Type&>(control);
}

template ListView& ScriptCommands::FindAs(std::string_view, ControlKind) const;
template ComboBox& ScriptCommands::FindAs(std::string_view, ControlKind) const;

Control& ScriptCommands::Usable(std::string_view name) const {
    Control& control = FindControl(name);
    const Form* top = program_.pump.Windows().TopModal();
    if (top != nullptr && top != &control.form)
        throw ScriptEnd{Concat(control.name, " stands under a modal window")};
    if (!control.form.enabled || !control.EffectivelyEnabled())
        throw ScriptEnd{Concat(control.name, " is disabled")};
    if (IsHidden(control)) throw ScriptEnd{Concat(control.name, " is hidden")};
    return control;
}

template <typename Type>
Type& ScriptCommands::UsableAs(std::string_view name, ControlKind kind) const {
    Usable(name);
    return FindAs<Type>(name, kind);
}

void ScriptCommands::Click(const Words& words) {
    Control& control = Usable(words[1]);
    // Cancel never validates.
    if (&control == control.form.cancelButton || acts_.Reach(control)) acts_.Click(control);
}

void ScriptCommands::Type(const Words& words) {
    auto& field = UsableAs<TextBox>(words[1], ControlKind::TextBox);
    if (!acts_.Reach(field)) return;
    if (field.readOnly) throw ScriptEnd{Concat(field.name, " is read-only")};
    acts_.Type(field, TypedText(field, words[2]));
}

void ScriptCommands::Set(const Words& words) {
    Control& control = Usable(words[1]);
    if (!acts_.Reach(control)) return;
    switch (control.kind) {
        case ControlKind::TextBox:
            return SetText(static_cast<TextBox&>(control), words[2]);
        case ControlKind::ComboBox:
            return SetCombo(static_cast<ComboBox&>(control), words[2]);
        case ControlKind::CheckBox:
            return Turn(control, static_cast<CheckBox&>(control).checked, words[2]);
        case ControlKind::OptionButton:
            return Turn(control, static_cast<OptionButton&>(control).checked, words[2]);
        case ControlKind::MenuEntry:
            if (!static_cast<MenuEntry&>(control).checkable)
                throw ScriptEnd{Concat(control.name, " has no check mark")};
            return Turn(control, static_cast<MenuEntry&>(control).checked, words[2]);
        case ControlKind::TabStrip:
            return SetTab(static_cast<TabStrip&>(control), words[2]);
        default:
            throw ScriptEnd{Concat(control.name, " can't be set")};
    }
}

void ScriptCommands::SetText(TextBox& field, const std::string& word) {
    if (field.readOnly) throw ScriptEnd{Concat(field.name, " is read-only")};
    acts_.Type(field, TypedText(field, word));
    acts_.LeaveField(field);
}

// Any text may be typed into an editable combo box.
void ScriptCommands::SetCombo(ComboBox& combo, const std::string& word) {
    const auto index = FindEntry(combo, word);
    if (!index && combo.style != ComboStyle::Editable)
        throw ScriptEnd{Concat(combo.name, " has no entry '", word, "'")};
    if (index) return acts_.ChooseEntry(combo, *index);
    acts_.Type(combo, FromScreen(word));
}

void ScriptCommands::SetTab(TabStrip& tabs, const std::string& word) {
    const auto found = std::find_if(tabs.pages.begin(), tabs.pages.end(),
                                    [&](const TabPage& page) { return EqualNoCase(page.key, word); });
    if (found == tabs.pages.end()) throw ScriptEnd{Concat(tabs.name, " has no tab '", word, "'")};
    acts_.SelectTab(tabs, *found);
}

void ScriptCommands::Turn(Control& control, bool checked, const std::string& word) {
    if (checked != ParseOnOff(word)) acts_.Click(control);
}

void ScriptCommands::Node(const Words& words) {
    auto& tree = UsableAs<TreeView>(words[1], ControlKind::TreeView);
    if (!acts_.Reach(tree)) return;
    const std::int32_t node = NodePlace(tree, words[2]);
    const bool on = ParseOnOff(words[3]);
    if (tree.At(node).checked != on) acts_.CheckNode(tree, node, on);
}

void ScriptCommands::Select(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (!acts_.Reach(list)) return;
    if (EqualNoCase(words[2], "all")) return acts_.SelectAllRows(list, true);
    if (EqualNoCase(words[2], "none")) return acts_.SelectAllRows(list, false);
    std::vector<std::int32_t> rows;
    for (const std::string_view row : SplitText(words[2], ',')) rows.push_back(RowOf(list, row));
    acts_.SelectRows(list, rows);
}

void ScriptCommands::Current(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (acts_.Reach(list)) acts_.ClickRow(list, RowOf(list, words[2]));
}

void ScriptCommands::DoubleClick(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (acts_.Reach(list)) acts_.DoubleClickRow(list, RowOf(list, words[2]));
}

void ScriptCommands::SortColumn(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (!acts_.Reach(list)) return;
    const auto count = static_cast<std::int32_t>(list.columns.size());
    std::int32_t column = ParseWholeNumber(words[2]).value_or(-1);
    for (std::int32_t i = 0; i < count; ++i) {
        const ListColumn& candidate = list.columns[static_cast<std::size_t>(i)];
        if (IsNamed(candidate.caption, words[2]) || IsNamed(candidate.key, words[2])) column = i;
    }
    if (column < 0 || column >= count) throw ScriptEnd{Concat(list.name, " has no column '", words[2], "'")};
    acts_.ClickColumn(list, column);
}

void ScriptCommands::Key(const Words& words) {
    const bool help = EqualNoCase(words[2], "F1");
    const EventKey key = KeyNamed(words[2]);
    if (Form* form = FindForm(words[1])) {
        // A form without a frame goes by any key.
        if (!help && key == kKeyOther && !form->frameless)
            throw ScriptEnd{Concat("unknown key '", words[2], "'")};
        return help ? acts_.AskForHelp(*form) : acts_.PressKey(*form, key);
    }
    Control& control = Usable(words[1]);
    if (!TakesFocus(control)) throw ScriptEnd{Concat(control.name, " takes no focus")};
    if (!acts_.Reach(control)) return;
    if (!help && key == kKeyOther) throw ScriptEnd{Concat("unknown key '", words[2], "'")};
    acts_.Focus(control);
    help ? acts_.AskForHelp(control.form) : acts_.PressKey(control, key);
}

void ScriptCommands::Focus(const Words& words) {
    Control& control = Usable(words[1]);
    if (!TakesFocus(control)) throw ScriptEnd{Concat(control.name, " takes no focus")};
    if (acts_.Reach(control)) acts_.Focus(control);
}

void ScriptCommands::CloseForm(const Words& words) {
    Form* top = program_.pump.Windows().TopModal();
    Form* form = words.size() > 1 ? FindForm(words[1]) : top;
    if (words.size() > 1 && form == nullptr) throw ScriptEnd{Concat("unknown name '", words[1], "'")};
    if (form == nullptr) form = &program_.forms.frmMain;
    if (top != nullptr && top != form) throw ScriptEnd{Concat(form->name, " stands under a modal window")};
    acts_.PressCloseBox(*form);
}

void ScriptCommands::DropFile(const Words& words) {
    acts_.DropFile(program_.forms.frmMain, words[1]);
}

void ScriptCommands::FireTimer(const Words& words) {
    if (!program_.context.services.windows.TimerArmed(words[1]))
        throw ScriptEnd{Concat("timer '", words[1], "' is not armed")};
    acts_.FireTimer(words[1]);
}

void ScriptCommands::Hover(const Words& words) {
    Control& control = FindControl(words[1]);
    std::int32_t node = -1;
    if (words.size() > 2) {
        if (control.kind != ControlKind::TreeView) throw ScriptEnd{Concat(control.name, " is no tree")};
        node = NodePlace(static_cast<TreeView&>(control), words[2]);
    }
    if (control.kind == ControlKind::TreeView) control.toolTip.clear();
    acts_.Rest(control, node);
    out_ << Printed(control.toolTip) << '\n';
}

void ScriptCommands::Popup(const Words& words) {
    Control& control = Usable(words[1]);
    const MenuEntry* menu = acts_.Reach(control) ? acts_.OpenPopup(control) : nullptr;
    if (menu == nullptr) {
        out_ << "none\n";
    } else {
        PrintMenu(out_, *menu);
    }
}

}  // namespace orlo
