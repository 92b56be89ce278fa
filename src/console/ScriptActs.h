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

// Thrown to end a script. It is no std::exception, so that no handler of a procedure's failures catches it.
struct ScriptEnd {
    std::string reason;
};

// How a front end does what a script tells it to. Texts are bytes as the forms hold them; rows are counted
// from 0 as displayed; entries, rows and nodes that are named exist. A control that is used is enabled and
// under no modal form, and it is shown, or hidden only because its pane is behind another tab. A control that
// is only read, by Rest, Show or ShowsEnabled, can be in any state. An act that the front end can't do throws
// ScriptEnd.
class ScriptActs {
  public:
    virtual ~ScriptActs() = default;

    // Before a control is used: leaves the field that has the focus. False where that field refuses; then
    // "kept FIELD" is printed and the focus stays.
    virtual bool Reach(Control& control) = 0;

    virtual void Click(Control& control) = 0;
    virtual void Focus(Control& control) = 0;
    virtual void Type(TextBox& field, const std::string& text) = 0;
    virtual void LeaveField(TextBox& field) = 0;  // prints "kept FIELD" where the field refuses
    virtual void Type(ComboBox& combo, const std::string& text) = 0;
    virtual void ChooseEntry(ComboBox& combo, std::int32_t index) = 0;
    virtual void SelectTab(TabStrip& tabs, const TabPage& page) = 0;
    virtual void CheckNode(TreeView& tree, std::int32_t node, bool on) = 0;  // only where that is a change
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
    virtual void FireTimer(const std::string& name) = 0;  // an armed one
    virtual void Quit() = 0;

    // Lets the pointer rest on the control, and of a tree on that node, -1 for none, so that the control's
    // tool tip is up to date.
    virtual void Rest(Control& control, std::int32_t node) = 0;
    virtual const MenuEntry* OpenPopup(Control& control) = 0;  // null for none
    // Prints what stands in the control, as PrintControl does.
    virtual void Show(std::ostream& out, Control& control) = 0;
    virtual bool ShowsEnabled(Control& control) = 0;

    // Runs a command of this front end alone. False where it has none of that name.
    virtual bool RunOther(const std::vector<std::string>&) { return false; }
};

}  // namespace orlo
