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

// What a user does, as far as no toolkit does it: the rules that a window asks for too, and the acts for
// front ends without one.

// Whether the control can have the focus.
bool TakesFocus(const Control& control);
// Whether the control that has the focus, null for none, is asked before `to` gets it; null stands for the
// next control. A click on the cancel button never asks.
bool AsksToLeave(const Control* focus, const Control* to);
// Whether Enter ends a line there instead of pressing a button.
bool EnterEndsLine(const Control* focus);
// The button that Enter or Escape presses while that control has the focus; null where there is none, or
// where it is disabled or hidden.
Button* ButtonOfKey(Form& form, EventKey key, Control* focus);

// Each act writes the control and delivers the event, at once. An act is false where the event was dropped,
// which leaves the control as it was, or refused.
class UserHands {
  public:
    explicit UserHands(EventPump& pump) : pump_(pump) {}

    // Moves the focus, as the tab key does. False when the field that has it refuses, and so keeps it. A
    // control that takes no focus moves none.
    bool MoveFocus(Control& to);
    // Asks a field that is about to lose the focus. False when it refuses.
    bool Leave(Control& field);

    // These move no focus.
    bool Press(Control& control);  // a button, menu entry or picture; turns a check box, checks an option
    bool Type(TextBox& field, std::string_view text);  // in place of what stands there, as one change
    bool ChooseEntry(ComboBox& combo, std::int32_t index);
    bool Type(ComboBox& combo, std::string_view text);
    bool SelectTab(TabStrip& tabs, const TabPage& page);
    bool CheckNode(TreeView& tree, std::int32_t node, bool on);
    bool SelectRows(ListView& list, std::span<const std::int32_t> places);  // the last one is the current
    bool SelectAllRows(ListView& list, bool selected);
    bool ClickRow(ListView& list, std::int32_t place);
    bool DoubleClickRow(ListView& list, std::int32_t place);
    bool ClickColumn(ListView& list, std::int32_t column);
    bool PressKey(Control& focus, EventKey key);  // Enter and Escape press their buttons
    bool ReleaseKey(Control& focus, EventKey key);
    bool PressKey(Form& form, EventKey key);  // wherever its focus stands, if it has one
    bool AskForHelp(Form& form);
    bool DropFile(Form& form, std::string_view path);
    bool Hover(Control& control, std::int32_t node);  // -1: on none; the tool tip is written then
    MenuEntry* OpenPopup(Control& control);           // null where there is none
    // The result is the form's close request.
    bool PressCloseBox(Form& form);

  private:
    template <typename Write>
    bool Act(Control& control, EventKind kind, std::int32_t value, Write write);
    bool Deliver(Form& form, EventKind kind, std::int32_t value = 0);

    EventPump& pump_;
};

}  // namespace orlo
