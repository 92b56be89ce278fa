#include <array>

#include "operations/KeptFilesWindow.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

using enum EventKind;
using KF = KeptFilesForm;

void PressRestore(Context& context, Event& event) {
    event.presses = &context.forms.frmKeptFiles.cmdRestore;
}

void OnKeptKey(Context& context, Event& event) {
    if (event.value == kKeyDelete) event.presses = &context.forms.frmKeptFiles.cmdDelete;
}

constexpr std::array kKeptFilesEvents = {
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<KF, &KF::lvKept>, SelectRow, Run<EnableKeptFiles>},
    EventEntry{ControlOf<KF, &KF::lvKept>, DoubleClick, PressRestore},
    EventEntry{ControlOf<KF, &KF::lvKept>, ClickColumn, SortByColumn},
    EventEntry{ControlOf<KF, &KF::lvKept>, KeyUp, OnKeptKey},
    EventEntry{ControlOf<KF, &KF::cmdRestore>, Click, Run<RestoreKeptFile>},
    EventEntry{ControlOf<KF, &KF::cmdShowFolder>, Click, Run<ShowKeptFolder>},
    EventEntry{ControlOf<KF, &KF::cmdDelete>, Click, Run<DeleteKeptFiles>},
    EventEntry{ControlOf<KF, &KF::cmdClose>, Click, Run<CloseKeptFiles>},
};

}  // namespace

EventTable KeptFilesEvents() {
    return kKeptFilesEvents;
}

}  // namespace orlo
