#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "forms/Event.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/TreeView.h"
#include "shell/EventPump.h"

namespace orlo {

// What a user does to a form, without a toolkit: rules, which a window asks too, and acts, for front ends
// that have no widgets.

// Whether the control can have the focus.
bool TakesFocus(const Control& control);
// Whether the control that has the focus, null for none, is asked by a Leave before `to` gets the focus. Only
// a text box is, and not by the cancel button. Null as `to`: whatever the next control is.
bool AsksToLeave(const Control* focus, const Control* to);
// Whether Enter ends a line there instead of pressing a button.
bool EnterEndsLine(const Control* focus);
// The button that Enter or Escape presses while `focus` has the focus, null for no control. Of a pane behind
// another tab it is that pane's own default button. Null for any other key, where there is no such button,
// and where it is disabled or hidden.
Button* ButtonOfKey(Form& form, EventKey key, Control* focus);

// Each act writes the control and runs its event at once. False where the pump dropped the event, and then
// the control is as it was, or where the procedure refused it. Rows are places in the list.
class UserHands {
  public:
    explicit UserHands(EventPump& pump) : pump_(pump) {}

    // Moves the focus, as the Tab key does. False where the field that has it refuses; then the focus stays.
    // It stays too, with true, where `to` takes no focus.
    bool MoveFocus(Control& to);
    // Asks a field that is about to lose the focus; moves no focus. False where it refuses.
    bool Leave(Control& field);

    // The acts below don't move the focus themselves.
    bool Press(Control& control);                      // a click; inverts a check box, checks an option
    bool Type(TextBox& field, std::string_view text);  // replaces the whole text, as one change
    bool ChooseEntry(ComboBox& combo, std::int32_t index);
    bool Type(ComboBox& combo, std::string_view text);
    bool SelectTab(TabStrip& tabs, const TabPage& page);
    bool CheckNode(TreeView& tree, std::int32_t node, bool on);
    bool SelectRows(ListView& list, std::span<const std::int32_t> places);  // the last becomes current
    bool SelectAllRows(ListView& list, bool selected);
    bool ClickRow(ListView& list, std::int32_t place);
    bool DoubleClickRow(ListView& list, std::int32_t place);
    bool ClickColumn(ListView& list, std::int32_t column);
    bool PressKey(Control& focus, EventKey key);    // Enter and Escape press their buttons
    bool ReleaseKey(Control& focus, EventKey key);  // KeyUp, as Delete and Insert give it
    bool PressKey(Form& form, EventKey key);        // wherever its focus stands; KeyUp on a frameless form
    bool AskForHelp(Form& form);
    bool DropFile(Form& form, std::string_view path);
    // The pointer rests on the control, and of a tree on that node, -1 for none. A procedure may write the
    // tool tip.
    bool Hover(Control& control, std::int32_t node);
    MenuEntry* OpenPopup(Control& control);  // null where none opens
    // Gives the form's close request.
    bool PressCloseBox(Form& form);

  private:
    template <typename Write>
    bool Act(Control& control, EventKind kind, std::int32_t value, Write write);
    bool Deliver(Form& form, EventKind kind, std::int32_t value = 0);

    EventPump& pump_;
};

}  // namespace orlo
