#include "shell/PaneFacts.h"

#include <array>

#include "shell/EventTables.h"

namespace orlo {
namespace {

using M = MainForm;
using enum EventKind;
using namespace edges;

constexpr std::array kTimetableEvents = {
    EventEntry{InMain<&M::cmTTZone>, Change},
    EventEntry{InMain<&M::cmdTTShow>, Click},
    EventEntry{InMain<&M::cmdTTPrint>, Click},
    EventEntry{InMain<&M::cmdTTSave>, Click},
    EventEntry{InMain<&M::cmdTTStatistics>, Click},
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
