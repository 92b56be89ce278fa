#include <array>

#include "operations/StatisticsWindow.h"
#include "shell/EventTables.h"
#include "shell/HelpMenu.h"

namespace orlo {
namespace {

using enum EventKind;
using S = TTStatisticsForm;

constexpr std::array kTTStatisticsEvents = {
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<S, &S::cmdPrint>, Click, Run<PrintTimetableStatistics>},
    EventEntry{ControlOf<S, &S::cmdSave>, Click, Run<SaveTimetableStatistics>},
    EventEntry{ControlOf<S, &S::cmdSavePicture>, Click, Run<SaveTimetablePicture>},
    EventEntry{ControlOf<S, &S::cmdClose>, Click, Run<CloseTimetableStatistics>},
};

}  // namespace

EventTable TTStatisticsEvents() {
    return kTTStatisticsEvents;
}

}  // namespace orlo
