#include <array>

#include "editors/FlightEditAccept.h"
#include "editors/FlightEditFields.h"
#include "editors/FlightEditLegs.h"
#include "editors/FlightEditPrint.h"
#include "editors/FlightEditor.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

// Delete and Insert in the list press its buttons.
void OnLegKey(Context& context, Event& event) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (event.value == kKeyDelete) event.presses = &form.cmdDelete;
    if (event.value == kKeyInsert) event.presses = &form.cmdAdd;
}

using enum EventKind;
using E = FlightEditForm;

template <auto Member>
constexpr ControlGetter InEditor = ControlOf<E, Member>;

constexpr std::array kFlightEditEvents = {
    EventEntry{nullptr, Close, Run<CancelFlightEdit>},
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{InEditor<&E::cmAircraft>, Change, Run<OnFlightAircraft>},
    EventEntry{InEditor<&E::txtReg>, Change, Run<OnFlightRegistration>},
    EventEntry{InEditor<&E::txtPercent>, Leave, OnLeaveFlightPercent},
    EventEntry{InEditor<&E::cmPeriod>, Change, Run<OnFlightPeriod>},
    EventEntry{InEditor<&E::opIFR>, Click, Run<OnFlightType>},
    EventEntry{InEditor<&E::opVFR>, Click, Run<OnFlightType>},
    EventEntry{InEditor<&E::cmZone>, Change, Run<OnFlightZone>},
    EventEntry{InEditor<&E::lvLegs>, SelectRow, Run<OnSelectLeg>},
    EventEntry{InEditor<&E::lvLegs>, KeyUp, OnLegKey},
    EventEntry{InEditor<&E::cmdAdd>, Click, Run<AddLeg>},
    EventEntry{InEditor<&E::cmdDelete>, Click, Run<DeleteLeg>},
    EventEntry{InEditor<&E::cmDeparture>, Change, Run<OnLegDeparture>},
    EventEntry{InEditor<&E::cmArrival>, Change, Run<OnLegArrival>},
    EventEntry{InEditor<&E::cmDay>, Change, Run<OnLegDay>},
    EventEntry{InEditor<&E::txtTime>, Change, Run<OnLegTime>},
    EventEntry{InEditor<&E::txtTime>, Leave, OnLeaveLegTime},
    EventEntry{InEditor<&E::txtETA>, Change, Run<OnLegETA>},
    EventEntry{InEditor<&E::txtETA>, Leave, OnLeaveLegETA},
    EventEntry{InEditor<&E::ckFixedETA>, Click, Run<OnLegFixedETA>},
    EventEntry{InEditor<&E::txtLevel>, Leave, OnLeaveLegLevel},
    EventEntry{InEditor<&E::txtNumber>, Change, Run<OnLegNumber>},
    EventEntry{InEditor<&E::ckUseNumber>, Click, Run<OnLegUseNumber>},
    EventEntry{InEditor<&E::cmdOK>, Click, Run<AcceptFlight>},
    EventEntry{InEditor<&E::cmdCancel>, Click, Run<CancelFlightEdit>},
    EventEntry{InEditor<&E::cmdUndo>, Click, Run<UndoFlightEdit>},
    EventEntry{InEditor<&E::cmdPrint>, Click, Run<PrintFlightEdit>},
};

}  // namespace

EventTable FlightEditEvents() {
    return kFlightEditEvents;
}

}  // namespace orlo
