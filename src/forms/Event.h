#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "forms/ControlOf.h"

namespace orlo {

enum class EventKind {
    Click,        // button, check box, option button, menu entry, picture
    Change,       // each edit of a text box; a choice in a combo box
    Leave,        // a text box loses the focus to another control; may be refused
    SelectTab,    // tab strip; selectedKey is already the new one
    CheckNode,    // tree; `value` is the node, whose check is already the new one
    SelectRow,    // list; the current item or the selection changed
    DoubleClick,  // list; `value` is the row's place
    ClickColumn,  // list; `value` is the column
    KeyUp,        // on the focused control, or on a form that gives no control the focus; `value` is the key
    Popup,        // right mouse button on a list or tree; the procedure names the menu
    Hover,  // the pointer rests on a control, `value` is the tree's node or -1; the procedure sets its tool
            // tip
    Timer,  // `control` is null, `name` tells the timer
    SystemMenu,  // the entry "About" of a window's system menu; `control` is null
    Help,        // the key for help; `control` is null
    DropFile,    // the file `path` was dropped on the window; `control` is null
    Resize,      // the inner size of the window changed, and the form's with it; `control` is null
    Close,       // the close box; `control` is null; may be refused
};

enum EventKey : std::int32_t {
    kKeyOther = 0,
    kKeyEnter = 13,
    kKeyEscape = 27,
    kKeyInsert = 45,
    kKeyDelete = 46
};

// What a user did. The form is written before its event is delivered.
struct Event {
    Form* form = nullptr;
    Control* control = nullptr;
    EventKind kind = EventKind::Click;
    std::int32_t value = 0;
    std::string_view name = {};  // of a timer
    std::string path = {};       // of a file that was dropped
    bool refused = false;        // set by a procedure that refuses a Leave or a Close
    MenuEntry* menu = nullptr;   // set by the procedure of a Popup
    Button* presses = nullptr;   // set by a procedure whose event stands for a click on that button
};

struct Context;

// What runs when.
struct EventEntry {
    ControlGetter control = nullptr;  // null for events of the form itself
    EventKind kind = EventKind::Click;
    void (*procedure)(Context& context, Event& event);  // never null
    std::string_view timer = {};                        // for a Timer: its name
};

using EventTable = std::span<const EventEntry>;

}  // namespace orlo
