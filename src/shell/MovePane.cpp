#include "shell/PaneFacts.h"

#include <array>

#include "operations/Mover.h"
#include "shell/EventTables.h"
#include "shell/TreeEvents.h"

namespace orlo {
namespace {

using M = MainForm;
using enum EventKind;
using namespace edges;

constexpr std::array kMoveEvents = {
    EventEntry{InMain<&M::cmMoveView>, Change, Run<OnMoveView>},
    EventEntry{InMain<&M::tvMoveAircrafts>, CheckNode, OnNodeCheck},
    EventEntry{InMain<&M::tvMoveAircrafts>, Hover, OnTreeHover},
    EventEntry{InMain<&M::tvMoveAircrafts>, Popup, OnSelectPopup},
    EventEntry{InMain<&M::cmdMove>, Click, Run<MoveAll>},
    EventEntry{InMain<&M::cmdMovePercent>, Click, Run<MovePercentage>},
    EventEntry{InMain<&M::cmdMoveSave>, Click, Run<OnMoveSave>},
    EventEntry{InMain<&M::cmdMoveLoad>, Click, Run<OnMoveLoad>},
    EventEntry{InMain<&M::cmdMoveExecute>, Click, Run<ExecuteAction>},
};

constexpr std::array kMoveResize = {
    ResizeRow{InMain<&M::tvMoveAircrafts>, kGrows},
    ResizeRow{InMain<&M::cmMoveView>, kGrowsWide},
    ResizeRow{InMain<&M::lblSource>, kLow},
    ResizeRow{InMain<&M::lblMoveView>, kStays},
    ResizeRow{InMain<&M::lblMoveAircrafts>, kStays},
    ResizeRow{InMain<&M::cmSource>, kLowLeftHalf},
    ResizeRow{InMain<&M::lblDest>, kLowFromMiddle},
    ResizeRow{InMain<&M::cmDest>, kLowRightHalf},
    ResizeRow{InMain<&M::cmdMove>, kBottomLeft},
    ResizeRow{InMain<&M::cmdMovePercent>, kBottomLeft},
    ResizeRow{InMain<&M::cmdMoveSave>, kBottomRight},
    ResizeRow{InMain<&M::cmdMoveLoad>, kBottomRight},
    ResizeRow{InMain<&M::cmdMoveExecute>, kBottomRight},
};

}  // namespace

PaneFacts MovePaneFacts() {
    return {"MOVE", &M::picMove, &M::cmdMove, InMain<&M::cmSource>, "move.html", kMoveEvents, kMoveResize};
}

}  // namespace orlo
