#include "shell/UserHands.h"

#include "shell/PaneFacts.h"

namespace orlo {
namespace {

Button* Pressable(Button* button) {
    return button != nullptr && button->EffectivelyEnabled() && button->EffectivelyVisible() ? button
                                                                                             : nullptr;
}

// The default button of a pane behind another tab that holds the focus, which a script may reach; null where
// the focus stands elsewhere.
Button* DefaultBehindTab(Form& form, const Control* focus) {
    auto* main = dynamic_cast<MainForm*>(&form);
    const PaneFacts* pane = main != nullptr && focus != nullptr ? PaneAround(*main, *focus) : nullptr;
    if (pane == nullptr || (main->*pane->pane).visible) return nullptr;
    return &(main->*pane->defaultButton);
}

}  // namespace

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

bool AsksToLeave(const Control* focus, const Control* to) {
    if (focus == nullptr || focus == to || focus->kind != ControlKind::TextBox) return false;
    return to == nullptr || to != focus->form.cancelButton;
}

bool EnterEndsLine(const Control* focus) {
    if (focus == nullptr || focus->kind != ControlKind::TextBox) return false;
    const auto& box = static_cast<const TextBox&>(*focus);
    return box.style != TextBoxStyle::SingleLine && !box.readOnly;
}

Button* ButtonOfKey(Form& form, EventKey key, Control* focus) {
    if (key == kKeyEscape) return Pressable(form.cancelButton);
    if (key != kKeyEnter || EnterEndsLine(focus)) return nullptr;
    if (focus != nullptr && focus->kind == ControlKind::Button)
        return focus->EffectivelyEnabled() ? static_cast<Button*>(focus) : nullptr;
    if (Button* behind = DefaultBehindTab(form, focus))
        return behind->EffectivelyEnabled() ? behind : nullptr;
    return Pressable(form.defaultButton);
}

template <typename Write>
bool UserHands::Act(Control& control, EventKind kind, std::int32_t value, Write write) {
    Event event{&control.form, &control, kind, value};
    if (!pump_.Accepts(event)) return false;
    write();
    return pump_.Deliver(event);
}

bool UserHands::Deliver(Form& form, EventKind kind, std::int32_t value) {
    Event event{&form, nullptr, kind, value};
    return pump_.Deliver(event);
}

bool UserHands::MoveFocus(Control& to) {
    Form& form = to.form;
    if (form.focus == &to || !TakesFocus(to)) return true;
    if (AsksToLeave(form.focus, &to) && !Leave(*form.focus)) return false;
    form.focus = &to;
    form.focusRequest = false;
    return true;
}

bool UserHands::Leave(Control& field) {
    Event event{&field.form, &field, EventKind::Leave};
    pump_.Deliver(event);
    return !event.refused;
}

bool UserHands::Press(Control& control) {
    return Act(control, EventKind::Click, 0, [&] {
        if (control.kind == ControlKind::CheckBox) {
            auto& box = static_cast<CheckBox&>(control);
            box.checked = !box.checked;
        } else if (control.kind == ControlKind::OptionButton) {
            static_cast<OptionButton&>(control).Check();
        }
    });
}

bool UserHands::Type(TextBox& field, std::string_view text) {
    return Act(field, EventKind::Change, 0, [&] {
        field.text = text;
        field.selectAllRequest = false;
    });
}

bool UserHands::ChooseEntry(ComboBox& combo, std::int32_t index) {
    return Act(combo, EventKind::Change, 0, [&] { combo.index = index; });
}

bool UserHands::Type(ComboBox& combo, std::string_view text) {
    return Act(combo, EventKind::Change, 0, [&] { combo.Type(text); });
}

bool UserHands::SelectTab(TabStrip& tabs, const TabPage& page) {
    return Act(tabs, EventKind::SelectTab, 0, [&] { tabs.selectedKey = page.key; });
}

bool UserHands::CheckNode(TreeView& tree, std::int32_t node, bool on) {
    return Act(tree, EventKind::CheckNode, node, [&] {
        tree.current = node;
        tree.nodes[static_cast<std::size_t>(node)].checked = on;
    });
}

bool UserHands::SelectRows(ListView& list, std::span<const std::int32_t> places) {
    return Act(list, EventKind::SelectRow, 0, [&] {
        list.SelectAll(false);
        for (const std::int32_t place : places) list.Select(place, true);
        if (!places.empty()) list.current = places.back();
    });
}

bool UserHands::SelectAllRows(ListView& list, bool selected) {
    return Act(list, EventKind::SelectRow, 0, [&] { list.SelectAll(selected); });
}

bool UserHands::ClickRow(ListView& list, std::int32_t place) {
    return Act(list, EventKind::SelectRow, 0, [&] {
        list.current = place;
        list.SelectCurrentOnly();
    });
}

bool UserHands::DoubleClickRow(ListView& list, std::int32_t place) {
    ClickRow(list, place);
    return Act(list, EventKind::DoubleClick, place, [] {});
}

bool UserHands::ClickColumn(ListView& list, std::int32_t column) {
    return Act(list, EventKind::ClickColumn, column, [] {});
}

bool UserHands::PressKey(Control& focus, EventKey key) {
    Button* button = ButtonOfKey(focus.form, key, &focus);
    return button != nullptr && Press(*button);
}

bool UserHands::ReleaseKey(Control& focus, EventKey key) {
    return Act(focus, EventKind::KeyUp, key, [] {});
}

bool UserHands::PressKey(Form& form, EventKey key) {
    if (form.frameless) return Deliver(form, EventKind::KeyUp, key);
    Button* button = ButtonOfKey(form, key, form.focus);
    return button != nullptr && Press(*button);
}

bool UserHands::AskForHelp(Form& form) {
    return Deliver(form, EventKind::Help);
}

bool UserHands::DropFile(Form& form, std::string_view path) {
    Event event{&form, nullptr, EventKind::DropFile};
    event.path = path;
    return pump_.Deliver(event);
}

bool UserHands::Hover(Control& control, std::int32_t node) {
    return Act(control, EventKind::Hover, node, [] {});
}

MenuEntry* UserHands::OpenPopup(Control& control) {
    Event event{&control.form, &control, EventKind::Popup};
    pump_.Deliver(event);
    return event.menu;
}

bool UserHands::PressCloseBox(Form& form) {
    Deliver(form, EventKind::Close);
    return form.closeRequest;
}

}  // namespace orlo
