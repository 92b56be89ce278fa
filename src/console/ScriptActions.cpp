// What the console does for the commands of a script.

#include "console/ControlPrinting.h"
#include "console/ScriptRunner.h"

namespace orlo {

bool ScriptRunner::Kept(const Control& field) {
    out_ << "kept " << field.name << '\n';
    return false;
}

bool ScriptRunner::Reach(Control& control) {
    return hands_.MoveFocus(control) || Kept(*control.form.focus);
}

void ScriptRunner::Click(Control& control) {
    hands_.Press(control);
}

void ScriptRunner::Focus(Control&) {}  // reached already

void ScriptRunner::Type(TextBox& field, const std::string& text) {
    hands_.Type(field, text);
}

void ScriptRunner::LeaveField(TextBox& field) {
    if (field.form.focus != &field) return;
    if (hands_.Leave(field)) {
        field.form.focus = nullptr;
    } else {
        Kept(field);
    }
}

void ScriptRunner::Type(ComboBox& combo, const std::string& text) {
    hands_.Type(combo, text);
}

void ScriptRunner::ChooseEntry(ComboBox& combo, std::int32_t index) {
    hands_.ChooseEntry(combo, index);
}

void ScriptRunner::SelectTab(TabStrip& tabs, const TabPage& page) {
    hands_.SelectTab(tabs, page);
}

void ScriptRunner::CheckNode(TreeView& tree, std::int32_t node, bool on) {
    hands_.CheckNode(tree, node, on);
}

void ScriptRunner::SelectRows(ListView& list, const std::vector<std::int32_t>& rows) {
    std::vector<std::int32_t> places;
    for (const std::int32_t row : rows) places.push_back(list.PlaceAt(row));
    hands_.SelectRows(list, places);
}

void ScriptRunner::SelectAllRows(ListView& list, bool selected) {
    hands_.SelectAllRows(list, selected);
}

void ScriptRunner::ClickRow(ListView& list, std::int32_t row) {
    hands_.ClickRow(list, list.PlaceAt(row));
}

void ScriptRunner::DoubleClickRow(ListView& list, std::int32_t row) {
    hands_.DoubleClickRow(list, list.PlaceAt(row));
}

void ScriptRunner::ClickColumn(ListView& list, std::int32_t column) {
    hands_.ClickColumn(list, column);
}

void ScriptRunner::PressKey(Control& control, EventKey key) {
    if (key == kKeyDelete || key == kKeyInsert) {
        hands_.ReleaseKey(control, key);
    } else {
        hands_.PressKey(control, key);
    }
}

void ScriptRunner::PressKey(Form& form, EventKey key) {
    hands_.PressKey(form, key);
}

void ScriptRunner::AskForHelp(Form& form) {
    hands_.AskForHelp(form);
}

void ScriptRunner::DropFile(Form& form, const std::string& path) {
    hands_.DropFile(form, path);
}

void ScriptRunner::PressCloseBox(Form& form) {
    hands_.PressCloseBox(form);
}

void ScriptRunner::FireTimer(const std::string& name) {
    host_.StopTimer(name);
    Event event;
    event.kind = EventKind::Timer;
    event.name = name;
    program_.pump.Deliver(event);
}

void ScriptRunner::Rest(Control& control, std::int32_t node) {
    hands_.Hover(control, node);
}

const MenuEntry* ScriptRunner::OpenPopup(Control& control) {
    return hands_.OpenPopup(control);
}

void ScriptRunner::Show(std::ostream& out, Control& control) {
    PrintControl(out, control);
}

bool ScriptRunner::ShowsEnabled(Control& control) {
    return control.EffectivelyEnabled();
}

}  // namespace orlo
