#include <array>

#include "editors/AirportDistance.h"
#include "editors/AirportInfo.h"
#include "editors/AirportSearch.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

using enum EventKind;
using D = DistanceForm;
using S = AirportSearchForm;
using I = AirportInfoForm;

constexpr std::array kDistanceEvents = {
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<D, &D::cmdDistance>, Click, Run<AddAirportDistance>},
    EventEntry{ControlOf<D, &D::cmdClose>, Click, Run<CloseAirportDistance>},
};

constexpr std::array kAirportSearchEvents = {
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<S, &S::cmdSearch>, Click, Run<SearchAirports>},
    EventEntry{ControlOf<S, &S::lvSearch>, DoubleClick, ShowFoundAirport},
    EventEntry{ControlOf<S, &S::lvSearch>, ClickColumn, SortByColumn},
    EventEntry{ControlOf<S, &S::cmdClose>, Click, Run<CloseAirportSearch>},
};

constexpr std::array kAirportInfoEvents = {
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<I, &I::cmdSave>, Click, Run<SaveAirportInfo>},
    EventEntry{ControlOf<I, &I::cmdSavePicture>, Click, Run<SaveAirportPicture>},
    EventEntry{ControlOf<I, &I::cmdPrint>, Click, Run<PrintAirportInfo>},
    EventEntry{ControlOf<I, &I::cmdClose>, Click, Run<CloseAirportInfo>},
};

}  // namespace

EventTable DistanceEvents() {
    return kDistanceEvents;
}

EventTable AirportSearchEvents() {
    return kAirportSearchEvents;
}

EventTable AirportInfoEvents() {
    return kAirportInfoEvents;
}

}  // namespace orlo
