#include <array>

#include "editors/TextEditor.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

using enum EventKind;
using T = TextEditForm;

constexpr std::array kTextEditEvents = {
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<T, &T::cmdOK>, Click, Run<AcceptText>},
    EventEntry{ControlOf<T, &T::cmdCancel>, Click, Run<CancelText>},
};

}  // namespace

EventTable TextEditEvents() {
    return kTextEditEvents;
}

}  // namespace orlo
