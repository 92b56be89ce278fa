#include "shell/PaneFacts.h"

#include <array>

#include "operations/StatisticsWindow.h"
#include "operations/Timetable.h"
#include "shell/EventTables.h"

namespace orlo {
namespace {

using M = MainForm;
using enum EventKind;
using namespace edges;

constexpr std::array kTimetableEvents = {
    EventEntry{InMain<&M::cmTTZone>, Change, Run<OnTimetableZone>},
    EventEntry{InMain<&M::txtTTStart>, Leave, OnLeaveTimetableTime},
    EventEntry{InMain<&M::txtTTEnd>, Leave, OnLeaveTimetableTime},
    EventEntry{InMain<&M::txtTTPercent>, Leave, OnLeaveTimetablePercent},
    EventEntry{InMain<&M::cmdTTShow>, Click, Run<ShowTimetable>},
    EventEntry{InMain<&M::cmdTTPrint>, Click, Run<PrintTimetable>},
    EventEntry{InMain<&M::cmdTTSave>, Click, Run<SaveTimetable>},
    EventEntry{InMain<&M::cmdTTStatistics>, Click, Run<ShowTimetableStatistics>},
    EventEntry{InMain<&M::lvTimetable>, DoubleClick, Run<EditTimetableFlight>},
    EventEntry{InMain<&M::lvTimetable>, ClickColumn, SortByColumn},
};

constexpr std::array kTimetableResize = {
    ResizeRow{InMain<&M::lvTimetable>, kGrows},      ResizeRow{InMain<&M::txtTTAirport>, kGrowsWide},
    ResizeRow{InMain<&M::cmdTTShow>, kBottomMiddle}, ResizeRow{InMain<&M::cmdTTPrint>, kBottomMiddle},
    ResizeRow{InMain<&M::cmdTTSave>, kBottomMiddle}, ResizeRow{InMain<&M::cmdTTStatistics>, kBottomMiddle},
    ResizeRow{InMain<&M::lblTTZone>, kTopRight},     ResizeRow{InMain<&M::cmTTZone>, kTopRight},
};

}  // namespace

PaneFacts TimetablePaneFacts() {
    return {"TIMETABLE",      &M::picTimetable, &M::cmdTTShow,   InMain<&M::txtTTAirport>,
            "timetable.html", kTimetableEvents, kTimetableResize};
}

}  // namespace orlo
