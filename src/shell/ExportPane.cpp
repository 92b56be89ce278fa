#include "shell/PaneFacts.h"

#include <array>

#include "operations/EditFlights.h"
#include "operations/ExportFlights.h"
#include "operations/PrintFlights.h"
#include "shell/EventTables.h"
#include "shell/ExportTab.h"
#include "shell/TreeEvents.h"

namespace orlo {
namespace {

using M = MainForm;
using enum EventKind;
using namespace edges;

// EditFlight is overloaded, which Run can't take.
void EditCurrentFlight(Context& context, Event&) {
    EditFlight(context);
}

constexpr std::array kExportEvents = {
    EventEntry{InMain<&M::lvExPreview>, Popup, OnSelectPopup},
    EventEntry{InMain<&M::cmExZone>, Change, Run<OnExportZone>},
    EventEntry{InMain<&M::cmdPreview>, Click, Run<OnPreview>},
    EventEntry{InMain<&M::cmdExport>, Click, Run<ExportFlights>},
    EventEntry{InMain<&M::cmdExportRemainder>, Click, Run<ExportRemainder>},
    EventEntry{InMain<&M::cmdExportPrint>, Click, Run<PrintFlights>},
    EventEntry{InMain<&M::cmdEditFlight>, Click, EditCurrentFlight},
    EventEntry{InMain<&M::cmdAddFlight>, Click, Run<AddFlight>},
    EventEntry{InMain<&M::cmdDeleteFlight>, Click, Run<DeleteFlights>},
    EventEntry{InMain<&M::lvExPreview>, DoubleClick, EditCurrentFlight},
    EventEntry{InMain<&M::lvExPreview>, ClickColumn, SortByColumn},
    EventEntry{InMain<&M::lvExPreview>, KeyUp, OnExportKey},
};

constexpr std::array kExportResize = {
    ResizeRow{InMain<&M::lvExPreview>, kGrows},
    ResizeRow{InMain<&M::lblExClass>, kGrowsWide},
    ResizeRow{InMain<&M::cmExClass>, kGrowsWide},
    ResizeRow{InMain<&M::lblExDeparture>, kStays},
    ResizeRow{InMain<&M::lblExContinent>, kStays},
    ResizeRow{InMain<&M::lblExAirline>, kStays},
    ResizeRow{InMain<&M::lblExPreview>, kStays},
    ResizeRow{InMain<&M::cmdEditFlight>, kBottomLeft},
    ResizeRow{InMain<&M::cmdAddFlight>, kBottomLeft},
    ResizeRow{InMain<&M::cmdDeleteFlight>, kBottomLeft},
    ResizeRow{InMain<&M::cmdPreview>, kBottomRight},
    ResizeRow{InMain<&M::cmdExport>, kBottomRight},
    ResizeRow{InMain<&M::cmdExportRemainder>, kBottomRight},
    ResizeRow{InMain<&M::cmdExportPrint>, kBottomRight},
    ResizeRow{InMain<&M::txtExDeparture>, kLeftHalf},
    ResizeRow{InMain<&M::txtExContinent>, kLeftHalf},
    ResizeRow{InMain<&M::txtExAirline>, kLeftHalf},
    ResizeRow{InMain<&M::lblExLeg>, kFromMiddle},
    ResizeRow{InMain<&M::lblExCountry>, kFromMiddle},
    ResizeRow{InMain<&M::lblExportAircraft>, kFromMiddle},
    ResizeRow{InMain<&M::txtExLeg>, kRightHalf},
    ResizeRow{InMain<&M::txtExCountry>, kRightHalf},
    ResizeRow{InMain<&M::cmExportAircraft>, kRightHalf},
    ResizeRow{InMain<&M::lblExZone>, kTopRight},
    ResizeRow{InMain<&M::cmExZone>, kTopRight},
    ResizeRow{InMain<&M::frIFRVFR>, kTopRight},
    ResizeRow{InMain<&M::frSearchType>, kTopRight},
    ResizeRow{InMain<&M::opANDSearch>, kTopRight},
    ResizeRow{InMain<&M::opORSearch>, kTopRight},
};

}  // namespace

PaneFacts ExportPaneFacts() {
    return {"EXPORT",      &M::picExport, &M::cmdPreview, InMain<&M::txtExDeparture>,
            "export.html", kExportEvents, kExportResize};
}

}  // namespace orlo
