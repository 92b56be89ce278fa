#include <array>

#include "editors/AddPlanAircraft.h"
#include "editors/PlanAircraftCommands.h"
#include "editors/PlanAircraftEditor.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

using enum EventKind;
using A = AircraftEditForm;

template <auto Member>
constexpr ControlGetter InAircraftEditor = ControlOf<A, Member>;

void PressNumber(Context& context, Event& event) {
    event.presses = &context.forms.frmAircraftEdit.cmdNumber;
}

void PressAdd(Context& context, Event& event) {
    event.presses = &context.forms.frmAircraftEdit.cmdAdd;
}

constexpr std::array kAircraftEditEvents = {
    EventEntry{nullptr, Close, OnClosePlanAircraft},
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{InAircraftEditor<&A::lvAircrafts>, DoubleClick, PressNumber},
    EventEntry{InAircraftEditor<&A::lvAircrafts>, ClickColumn, SortByColumn},
    EventEntry{InAircraftEditor<&A::cmdNumber>, Click, Run<ChangeAircraftNumber>},
    EventEntry{InAircraftEditor<&A::cmdSpeed>, Click, Run<ChangeCruiseSpeed>},
    EventEntry{InAircraftEditor<&A::cmdTitle>, Click, Run<ChangeAircraftTitle>},
    EventEntry{InAircraftEditor<&A::cmdDelete>, Click, Run<DeletePlanAircraft>},
    EventEntry{InAircraftEditor<&A::cmdSubstitute>, Click, Run<SubstituteAircraft>},
    EventEntry{InAircraftEditor<&A::lvFSAircraft>, DoubleClick, PressAdd},
    EventEntry{InAircraftEditor<&A::lvFSAircraft>, ClickColumn, SortByColumn},
    EventEntry{InAircraftEditor<&A::cmdAdd>, Click, Run<AddPlanAircraft>},
    EventEntry{InAircraftEditor<&A::cmdAddMissing>, Click, Run<AddMissingAircraft>},
    EventEntry{InAircraftEditor<&A::cmdSave>, Click, Run<SavePlanAircraft>},
    EventEntry{InAircraftEditor<&A::cmdCancel>, Click, Run<CancelPlanAircraft>},
};

}  // namespace

EventTable AircraftEditEvents() {
    return kAircraftEditEvents;
}

}  // namespace orlo
