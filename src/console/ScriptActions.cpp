// The commands that act on controls, as a user would by mouse and keyboard.

#include <algorithm>

#include "console/ControlPrinting.h"
#include "console/ScriptRunner.h"
#include "console/ScriptText.h"
#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

// Whether a text is the one that a script names: as typed, or as its code page 1252 form; case aside.
bool IsNamed(std::string_view text, std::string_view word) {
    return EqualNoCase(text, word) || EqualNoCase(text, FromScreen(word));
}

bool TakesFocus(const Control& control) {
    switch (control.kind) {
        case ControlKind::Label:
        case ControlKind::MenuEntry:
        case ControlKind::Frame:
        case ControlKind::ProgressBar:
        case ControlKind::Picture:
        case ControlKind::StatusBar:
            return false;
        default:
            return true;
    }
}

// Panes behind other tabs can be used; what is hidden otherwise can't.
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

// Place of the row that is displayed at the position of that number.
std::int32_t RowPlace(const ListView& list, std::string_view word) {
    const auto position = ParseWholeNumber(word);
    if (!position || *position < 0 || *position >= list.Count()) {
        throw ScriptEnd{Concat(list.name, " has no row ", word)};
    }
    return list.PlaceAt(*position);
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

// Any text may be typed into an editable combo box.
void ChooseOrType(ComboBox& combo, const std::string& word) {
    const auto place = FindEntry(combo, word);
    if (place) {
        combo.index = *place;
    } else if (combo.style == ComboStyle::Editable) {
        combo.Type(FromScreen(word));
    } else {
        throw ScriptEnd{Concat(combo.name, " has no entry '", word, "'")};
    }
}

void ClickRow(ListView& list, std::int32_t place) {
    list.current = place;
    list.SelectCurrentOnly();
}

}  // namespace

Form* ScriptRunner::FindForm(std::string_view name) const {
    for (Form* form : program_.pump.Windows().forms) {
        if (EqualNoCase(form->name, name)) return form;
    }
    return nullptr;
}

Control& ScriptRunner::FindControl(std::string_view name) const {
    const std::size_t dot = name.find('.');
    if (dot != std::string_view::npos) {
        const Form* form = FindForm(name.substr(0, dot));
        Control* found = form != nullptr ? form->Find(name.substr(dot + 1)) : nullptr;
        if (found != nullptr) return *found;
    } else {
        for (const Form* form : program_.pump.Windows().forms) {
            if (Control* found = form->Find(name)) return *found;
        }
    }
    throw ScriptEnd{Concat("unknown name '", name, "'")};
}

template <typename Type>
Type& ScriptRunner::FindAs(std::string_view name, ControlKind kind) const {
    Control& control = FindControl(name);
    if (control.kind != kind) throw ScriptEnd{Concat(control.name, " is no control of that kind")};
    return static_cast<Type&>(control);
}

template ListView& ScriptRunner::FindAs(std::string_view, ControlKind) const;
template ComboBox& ScriptRunner::FindAs(std::string_view, ControlKind) const;

Control& ScriptRunner::Usable(std::string_view name) const {
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
Type& ScriptRunner::UsableAs(std::string_view name, ControlKind kind) const {
    Usable(name);
    return FindAs<Type>(name, kind);
}

bool ScriptRunner::Deliver(Control& control, EventKind kind, std::int32_t value) {
    Event event{&control.form, &control, kind, value};
    return program_.pump.Deliver(event);
}

bool ScriptRunner::Leave(Control& field) {
    if (field.kind != ControlKind::TextBox || !field.EffectivelyEnabled()) return true;
    Event event{&field.form, &field, EventKind::Leave};
    program_.pump.Deliver(event);
    if (!event.refused) return true;
    out_ << "kept " << field.name << '\n';
    return false;
}

bool ScriptRunner::MoveFocus(Control& to) {
    Form& form = to.form;
    if (form.focus == &to || !TakesFocus(to)) return true;
    if (form.focus != nullptr && !Leave(*form.focus)) return false;
    form.focus = &to;
    form.focusRequest = false;
    return true;
}

void ScriptRunner::Press(Control& control) {
    if (control.kind == ControlKind::CheckBox) {
        auto& box = static_cast<CheckBox&>(control);
        box.checked = !box.checked;
    } else if (control.kind == ControlKind::OptionButton) {
        static_cast<OptionButton&>(control).Check();
    }
    Deliver(control, EventKind::Click);
}

void ScriptRunner::Click(const Words& words) {
    Control& control = Usable(words[1]);
    // Cancel never validates.
    if (&control == control.form.cancelButton || MoveFocus(control)) Press(control);
}

void ScriptRunner::WriteText(TextBox& field, const std::string& text) {
    if (field.readOnly) throw ScriptEnd{Concat(field.name, " is read-only")};
    field.text = FromScreen(text);
    field.selectAllRequest = false;
    Deliver(field, EventKind::Change);
}

void ScriptRunner::Type(const Words& words) {
    auto& field = UsableAs<TextBox>(words[1], ControlKind::TextBox);
    if (MoveFocus(field)) WriteText(field, words[2]);
}

void ScriptRunner::Set(const Words& words) {
    Control& control = Usable(words[1]);
    if (!MoveFocus(control)) return;
    switch (control.kind) {
        case ControlKind::TextBox:
            WriteText(static_cast<TextBox&>(control), words[2]);
            if (control.form.focus == &control && Leave(control)) control.form.focus = nullptr;
            break;
        case ControlKind::ComboBox: {
            auto& combo = static_cast<ComboBox&>(control);
            ChooseOrType(combo, words[2]);
            Deliver(combo, EventKind::Change);
            break;
        }
        case ControlKind::CheckBox:
            if (static_cast<CheckBox&>(control).checked != ParseOnOff(words[2])) Press(control);
            break;
        case ControlKind::OptionButton:
            if (static_cast<OptionButton&>(control).checked != ParseOnOff(words[2])) Press(control);
            break;
        case ControlKind::MenuEntry:
            if (!static_cast<MenuEntry&>(control).checkable)
                throw ScriptEnd{Concat(control.name, " has no check mark")};
            if (static_cast<MenuEntry&>(control).checked != ParseOnOff(words[2])) Press(control);
            break;
        case ControlKind::TabStrip: {
            auto& tabs = static_cast<TabStrip&>(control);
            const auto found = std::find_if(tabs.pages.begin(), tabs.pages.end(), [&](const TabPage& page) {
                return EqualNoCase(page.key, words[2]);
            });
            if (found == tabs.pages.end()) throw ScriptEnd{Concat(tabs.name, " has no tab '", words[2], "'")};
            tabs.selectedKey = found->key;
            Deliver(tabs, EventKind::SelectTab);
            break;
        }
        default:
            throw ScriptEnd{Concat(control.name, " can't be set")};
    }
}

void ScriptRunner::Node(const Words& words) {
    auto& tree = UsableAs<TreeView>(words[1], ControlKind::TreeView);
    if (!MoveFocus(tree)) return;
    const std::int32_t place = NodePlace(tree, words[2]);
    const bool on = ParseOnOff(words[3]);
    TreeNode& node = tree.nodes[static_cast<std::size_t>(place)];
    tree.current = place;
    if (node.checked == on) return;
    node.checked = on;
    Deliver(tree, EventKind::CheckNode, place);
}

void ScriptRunner::Select(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (!MoveFocus(list)) return;
    if (EqualNoCase(words[2], "all") || EqualNoCase(words[2], "none")) {
        list.SelectAll(EqualNoCase(words[2], "all"));
    } else {
        std::vector<std::int32_t> places;
        for (const std::string_view row : SplitText(words[2], ',')) places.push_back(RowPlace(list, row));
        list.SelectAll(false);
        for (const std::int32_t place : places) list.Select(place, true);
        list.current = places.back();
    }
    Deliver(list, EventKind::SelectRow);
}

void ScriptRunner::Current(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (!MoveFocus(list)) return;
    ClickRow(list, RowPlace(list, words[2]));
    Deliver(list, EventKind::SelectRow);
}

void ScriptRunner::DoubleClick(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (!MoveFocus(list)) return;
    const std::int32_t place = RowPlace(list, words[2]);
    ClickRow(list, place);
    Deliver(list, EventKind::SelectRow);
    Deliver(list, EventKind::DoubleClick, place);
}

void ScriptRunner::SortColumn(const Words& words) {
    auto& list = UsableAs<ListView>(words[1], ControlKind::ListView);
    if (!MoveFocus(list)) return;
    const auto count = static_cast<std::int32_t>(list.columns.size());
    std::int32_t column = ParseWholeNumber(words[2]).value_or(-1);
    for (std::int32_t i = 0; i < count; ++i) {
        const ListColumn& candidate = list.columns[static_cast<std::size_t>(i)];
        if (IsNamed(candidate.caption, words[2]) || IsNamed(candidate.key, words[2])) column = i;
    }
    if (column < 0 || column >= count) throw ScriptEnd{Concat(list.name, " has no column '", words[2], "'")};
    Deliver(list, EventKind::ClickColumn, column);
}

void ScriptRunner::Key(const Words& words) {
    const bool help = EqualNoCase(words[2], "F1");
    if (Form* form = FindForm(words[1])) {
        Event event{form, nullptr, help ? EventKind::Help : EventKind::KeyUp};
        program_.pump.Deliver(event);
        return;
    }
    Control& control = Usable(words[1]);
    if (!TakesFocus(control)) throw ScriptEnd{Concat(control.name, " takes no focus")};
    if (!MoveFocus(control)) return;
    Form& form = control.form;
    if (help) {
        Event event{&form, nullptr, EventKind::Help};
        program_.pump.Deliver(event);
    } else if (EqualNoCase(words[2], "Enter") || EqualNoCase(words[2], "Escape")) {
        Button* button = EqualNoCase(words[2], "Enter") ? form.defaultButton : form.cancelButton;
        if (EqualNoCase(words[2], "Enter") && control.kind == ControlKind::Button)
            button = static_cast<Button*>(&control);
        if (button != nullptr && button->EffectivelyEnabled()) Press(*button);
    } else if (EqualNoCase(words[2], "Delete")) {
        Deliver(control, EventKind::KeyUp, kKeyDelete);
    } else if (EqualNoCase(words[2], "Insert")) {
        Deliver(control, EventKind::KeyUp, kKeyInsert);
    } else {
        throw ScriptEnd{Concat("unknown key '", words[2], "'")};
    }
}

void ScriptRunner::Focus(const Words& words) {
    Control& control = Usable(words[1]);
    if (!TakesFocus(control)) throw ScriptEnd{Concat(control.name, " takes no focus")};
    MoveFocus(control);
}

void ScriptRunner::CloseForm(const Words& words) {
    OpenForms& windows = program_.pump.Windows();
    Form* form = words.size() > 1 ? FindForm(words[1]) : windows.TopModal();
    if (words.size() > 1 && form == nullptr) throw ScriptEnd{Concat("unknown name '", words[1], "'")};
    if (form == nullptr) form = &program_.forms.frmMain;
    const Form* top = windows.TopModal();
    if (top != nullptr && top != form) throw ScriptEnd{Concat(form->name, " stands under a modal window")};
    PressCloseBox(*form);
}

bool ScriptRunner::PressCloseBox(Form& form) {
    Event event{&form, nullptr, EventKind::Close};
    if (!program_.pump.Deliver(event)) return false;
    form.closeRequest = true;
    if (&form != &program_.forms.frmMain && program_.pump.Windows().TopModal() != &form)
        host_.UnloadForm(form);
    return true;
}

void ScriptRunner::FireTimer(const Words& words) {
    if (!host_.TimerArmed(words[1])) throw ScriptEnd{Concat("timer '", words[1], "' is not armed")};
    Event event;
    event.kind = EventKind::Timer;
    event.name = words[1];
    host_.StopTimer(words[1]);
    program_.pump.Deliver(event);
}

void ScriptRunner::DropFile(const Words& words) {
    Event event{&program_.forms.frmMain, nullptr, EventKind::DropFile};
    event.path = words[1];
    program_.pump.Deliver(event);
}

void ScriptRunner::Reply(const Words& words) {
    if (words[1] == "ok") {
        host_.answers.replies.push_back(MessageAnswer::Ok);
    } else if (words[1] == "yes") {
        host_.answers.replies.push_back(MessageAnswer::Yes);
    } else if (words[1] == "no") {
        host_.answers.replies.push_back(MessageAnswer::No);
    } else if (words[1] == "cancel") {
        host_.answers.replies.push_back(MessageAnswer::Cancel);
    } else {
        throw ScriptEnd{Concat("unknown answer '", words[1], "'")};
    }
}

void ScriptRunner::Hover(const Words& words) {
    Control& control = FindControl(words[1]);
    std::int32_t node = -1;
    if (words.size() > 2) {
        if (control.kind != ControlKind::TreeView) throw ScriptEnd{Concat(control.name, " is no tree")};
        node = NodePlace(static_cast<TreeView&>(control), words[2]);
    }
    if (control.kind == ControlKind::TreeView) control.toolTip.clear();
    Deliver(control, EventKind::Hover, node);
    out_ << Printed(control.toolTip) << '\n';
}

void ScriptRunner::Popup(const Words& words) {
    Control& control = Usable(words[1]);
    Event event{&control.form, &control, EventKind::Popup};
    if (MoveFocus(control)) program_.pump.Deliver(event);
    if (event.menu != nullptr) {
        PrintMenu(out_, *event.menu);
    } else {
        out_ << "none\n";
    }
}

}  // namespace orlo
