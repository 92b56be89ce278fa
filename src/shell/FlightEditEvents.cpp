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

// Delete and Insert on the list stand for its buttons.
void OnLegKey(Context& context, Event& event) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (event.value == kKeyDelete) RunButton(context, form.cmdDelete);
    if (event.value == kKeyInsert) RunButton(context, form.cmdAdd);
}

using enum EventKind;

constexpr std::array kFlightEditEvents = {
    EventEntry{"", Close, Run<CancelFlightEdit>},
    EventEntry{"", Help, ShowHelpPage},
    EventEntry{"cmAircraft", Change, Run<OnFlightAircraft>},
    EventEntry{"txtReg", Change, Run<OnFlightRegistration>},
    EventEntry{"txtPercent", Leave, OnLeaveFlightPercent},
    EventEntry{"cmPeriod", Change, Run<OnFlightPeriod>},
    EventEntry{"opIFR", Click, Run<OnFlightType>},
    EventEntry{"opVFR", Click, Run<OnFlightType>},
    EventEntry{"cmZone", Change, Run<OnFlightZone>},
    EventEntry{"lvLegs", SelectRow, Run<OnSelectLeg>},
    EventEntry{"lvLegs", KeyUp, OnLegKey},
    EventEntry{"cmdAdd", Click, Run<AddLeg>},
    EventEntry{"cmdDelete", Click, Run<DeleteLeg>},
    EventEntry{"cmDeparture", Change, Run<OnLegDeparture>},
    EventEntry{"cmArrival", Change, Run<OnLegArrival>},
    EventEntry{"cmDay", Change, Run<OnLegDay>},
    EventEntry{"txtTime", Change, Run<OnLegTime>},
    EventEntry{"txtTime", Leave, OnLeaveLegTime},
    EventEntry{"txtETA", Change, Run<OnLegETA>},
    EventEntry{"txtETA", Leave, OnLeaveLegETA},
    EventEntry{"ckFixedETA", Click, Run<OnLegFixedETA>},
    EventEntry{"txtLevel", Leave, OnLeaveLegLevel},
    EventEntry{"txtNumber", Change, Run<OnLegNumber>},
    EventEntry{"ckUseNumber", Click, Run<OnLegUseNumber>},
    EventEntry{"cmdOK", Click, Run<AcceptFlight>},
    EventEntry{"cmdCancel", Click, Run<CancelFlightEdit>},
    EventEntry{"cmdUndo", Click, Run<UndoFlightEdit>},
    EventEntry{"cmdPrint", Click, Run<PrintFlightEdit>},
};

}  // namespace

EventTable FlightEditEvents() {
    return kFlightEditEvents;
}

}  // namespace orlo
