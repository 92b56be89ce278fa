#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// What counts as a match of a search.
enum class SearchMode {
    Fields = 1,            // the fields of the tab Export/Search
    AircraftNotFound = 2,  // the aircraft isn't in the plan's list or isn't installed
    WrongFlightLevel = 3,  // a leg's level doesn't suit aircraft, route and flight rules
    WrongTime = 4,         // CheckFlightTimes finds a fault; its text is the result's error
    DuplicateFlights = 5,  // an equal flight stands earlier in the plan
    UnknownAirports = 6,   // a leg leads to an airport that the plan's list lacks; the codes are the error
};

// Walks the plan for the flights that match, fills the search state and lvExPreview with them and writes
// their number into lblExPreview. Removed flights never match. `departure` and `leg` are parts of codes, used
// in the mode Fields only. Where a region is asked for and there is no scenery, the search ends early: the
// search state is empty, the list shows what it showed, the main window stays disabled and the progress
// window open.
void SearchFlights(Context& context, std::string_view departure, std::string_view leg, SearchMode mode);

}  // namespace orlo
