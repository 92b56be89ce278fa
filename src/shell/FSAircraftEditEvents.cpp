#include <array>

#include "editors/FSAircraftClass.h"
#include "editors/FSAircraftEditor.h"
#include "editors/FSAircraftFields.h"
#include "editors/FSAircraftParts.h"
#include "operations/GeneratedLists.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

using enum EventKind;
using F = FSAircraftEditForm;

template <auto Member>
constexpr ControlGetter In = ControlOf<F, Member>;

void SaveAircraftChanges(Context& context) {
    SaveFSAircraft(context);
}

void GenerateTypesOfAll(Context& context) {
    GenerateAllAircraftTypes(context, context.forms.frmFSAircraftEdit);
}

constexpr std::array kFSAircraftEditEvents = {
    EventEntry{nullptr, Close, Run<CloseFSAircraftEditor>},
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{In<&F::lvAircrafts>, SelectRow, Run<ShowAircraftFields>},
    EventEntry{In<&F::lvAircrafts>, ClickColumn, SortByColumn},
    EventEntry{In<&F::txtTitle>, Change, OnAircraftField},
    EventEntry{In<&F::cmAirline>, Change, OnAircraftField},
    EventEntry{In<&F::cmClass>, Change, Run<OnAircraftClass>},
    EventEntry{In<&F::txtManufacturer>, Change, OnAircraftField},
    EventEntry{In<&F::txtType>, Change, OnAircraftField},
    EventEntry{In<&F::txtVariation>, Change, OnAircraftField},
    EventEntry{In<&F::txtATCID>, Change, OnAircraftField},
    EventEntry{In<&F::txtFlightNumber>, Change, OnAircraftField},
    EventEntry{In<&F::txtRadius>, Change, Run<OnAircraftRadius>},
    EventEntry{In<&F::txtRadius>, Leave, OnLeaveAircraftRadius},
    EventEntry{In<&F::txtModelFile>, Change, OnAircraftPart},
    EventEntry{In<&F::txtModelFile>, Leave, OnLeaveAircraftModel},
    EventEntry{In<&F::txtTexture>, Change, OnAircraftPart},
    EventEntry{In<&F::txtTexture>, Leave, OnLeaveAircraftTexture},
    EventEntry{In<&F::txtSim>, Change, OnAircraftPart},
    EventEntry{In<&F::txtSim>, Leave, OnLeaveAircraftSim},
    EventEntry{In<&F::cmATCModel>, Change, OnAircraftField},
    EventEntry{In<&F::cmATCType>, Change, OnAircraftField},
    EventEntry{In<&F::txtSpeed>, Change, Run<OnAircraftSpeed>},
    EventEntry{In<&F::txtSpeed>, Leave, OnLeaveAircraftSpeed},
    EventEntry{In<&F::ckHeavy>, Click, OnAircraftField},
    EventEntry{In<&F::ckVisualDamage>, Click, OnAircraftField},
    EventEntry{In<&F::cmdEditDescription>, Click, Run<EditAircraftDescription>},
    EventEntry{In<&F::cmdEditPerformance>, Click, Run<EditAircraftPerformance>},
    EventEntry{In<&F::cmdSave>, Click, Run<SaveAircraftChanges>},
    EventEntry{In<&F::cmdUndo>, Click, Run<UndoFSAircraft>},
    EventEntry{In<&F::cmdACTypeDat>, Click, Run<GenerateTypesOfAll>},
    EventEntry{In<&F::cmdCancel>, Click, Run<CloseFSAircraftEditor>},
};

}  // namespace

EventTable FSAircraftEditEvents() {
    return kFSAircraftEditEvents;
}

}  // namespace orlo
