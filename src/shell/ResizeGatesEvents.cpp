#include <array>

#include "editors/ResizeGates.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

using enum EventKind;
using R = ResizeGatesForm;

constexpr std::array kResizeGatesEvents = {
    EventEntry{nullptr, Close, Run<CloseResizeGates>},
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<R, &R::txtSize>, Change, Run<OnGateSize>},
    EventEntry{ControlOf<R, &R::txtSize>, Leave, OnLeaveGateSize},
    EventEntry{ControlOf<R, &R::cmdOK>, Click, Run<ResizeGates>},
    EventEntry{ControlOf<R, &R::cmdCancel>, Click, Run<CloseResizeGates>},
};

}  // namespace

EventTable ResizeGatesEvents() {
    return kResizeGatesEvents;
}

}  // namespace orlo
