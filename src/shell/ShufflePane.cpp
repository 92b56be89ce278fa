#include "shell/PaneFacts.h"

#include <array>

#include "operations/GeneratedLists.h"
#include "shell/EventTables.h"
#include "shell/ShuffleTab.h"
#include "shell/TreeEvents.h"

namespace orlo {
namespace {

using M = MainForm;
using enum EventKind;
using namespace edges;

constexpr std::array kShuffleEvents = {
    EventEntry{InMain<&M::cmShufflerView>, Change, Run<OnShufflerView>},
    EventEntry{InMain<&M::tvShuffleAircraft>, CheckNode, OnNodeCheck},
    EventEntry{InMain<&M::tvShuffleAircraft>, Hover, OnTreeHover},
    EventEntry{InMain<&M::tvShuffleAircraft>, Popup, OnSelectPopup},
    EventEntry{InMain<&M::txtStartNumber>, Leave, OnLeaveStartNumber},
    EventEntry{InMain<&M::cmdCalcStartNumber>, Click, Run<OnCalcStartNumber>},
    EventEntry{InMain<&M::cmdShuffle>, Click, Run<OnShuffle>},
    EventEntry{InMain<&M::cmdACTypeDat>, Click, Run<GenerateCheckedAircraftTypes>},
};

constexpr std::array kShuffleResize = {
    ResizeRow{InMain<&M::tvShuffleAircraft>, kGrows},
    ResizeRow{InMain<&M::cmShufflerView>, kGrowsWide},
    ResizeRow{InMain<&M::lblStartNumber>, kLow},
    ResizeRow{InMain<&M::txtStartNumber>, kLow},
    ResizeRow{InMain<&M::cmdCalcStartNumber>, kLow},
    ResizeRow{InMain<&M::ckOverwriteTailNumber>, kLow},
    ResizeRow{InMain<&M::ckRemoveMinus>, kLow},
    ResizeRow{InMain<&M::ckCheckFL>, kLow},
    ResizeRow{InMain<&M::ckIFRVFR>, kLow},
    ResizeRow{InMain<&M::ckCheckVisitedAirports>, kLow},
    ResizeRow{InMain<&M::cmdShuffle>, kBottomMiddle},
    ResizeRow{InMain<&M::cmdACTypeDat>, kBottomMiddle},
};

}  // namespace

PaneFacts ShufflePaneFacts() {
    return {"SHUFFLE",      &M::picShuffle, &M::cmdShuffle, nullptr,
            "shuffle.html", kShuffleEvents, kShuffleResize};
}

}  // namespace orlo
