#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Event.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/TreeView.h"

namespace orlo {

// Ends a script from anywhere; passes every handler of failures.
struct ScriptEnd {
    std::string reason;
};

// How a front end does what a script tells it to. The controls are enabled, not hidden but for a pane behind
// another tab, and under no modal form; entries, rows and nodes are there. Texts are bytes as the forms hold
// them; rows are counted as displayed. An act that the front end can't do throws ScriptEnd.
class ScriptActs {
  public:
    virtual ~ScriptActs() = default;

    // Before a control is used: leaves the field that has the focus. False, with a line that says so, where
    // that field keeps it.
    virtual bool Reach(Control& control) = 0;

    virtual void Click(Control& control) = 0;
    virtual void Focus(Control& control) = 0;
    virtual void Type(TextBox& field, const std::string& text) = 0;
    virtual void LeaveField(TextBox& field) = 0;  // says so where it keeps the focus
    virtual void Type(ComboBox& combo, const std::string& text) = 0;
    virtual void ChooseEntry(ComboBox& combo, std::int32_t index) = 0;
    virtual void SelectTab(TabStrip& tabs, const TabPage& page) = 0;
    virtual void CheckNode(TreeView& tree, std::int32_t node, bool on) = 0;  // it is otherwise now
    virtual void SelectRows(ListView& list, const std::vector<std::int32_t>& rows) = 0;
    virtual void SelectAllRows(ListView& list, bool selected) = 0;
    virtual void ClickRow(ListView& list, std::int32_t row) = 0;
    virtual void DoubleClickRow(ListView& list, std::int32_t row) = 0;
    virtual void ClickColumn(ListView& list, std::int32_t column) = 0;
    virtual void PressKey(Control& control, EventKey key) = 0;
    virtual void PressKey(Form& form, EventKey key) = 0;
    virtual void AskForHelp(Form& form) = 0;
    virtual void DropFile(Form& form, const std::string& path) = 0;
    virtual void PressCloseBox(Form& form) = 0;
    virtual void FireTimer(const std::string& name) = 0;  // it is armed
    virtual void Quit() = 0;

    // Lets the pointer rest on the control, or on that node of a tree where it isn't -1, for its tool tip.
    virtual void Rest(Control& control, std::int32_t node) = 0;
    virtual const MenuEntry* OpenPopup(Control& control) = 0;  // null for none
    // What stands in the control.
    virtual void Show(std::ostream& out, Control& control) = 0;
    virtual bool ShowsEnabled(Control& control) = 0;

    // A command that this front end alone knows; false for any other.
    virtual bool RunOther(const std::vector<std::string>&) { return false; }
};

}  // namespace orlo
