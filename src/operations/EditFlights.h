#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Single edits of the plan through lvExPreview. A run of them is undone as one step.

// Opens the editor on the flight of the current row; on acceptance the flight goes back into the plan and the
// row shows it. Does nothing without a current row.
void EditFlight(Context& context);

// Opens the editor on a new flight between the plan's first aircraft and airport. On acceptance the flight
// goes to the end of the plan and of the list. On cancel it stays behind the results, uncounted, until the
// next search or the next new flight.
void AddFlight(Context& context);

// After a question, marks the selected flights Removed and takes them out of the list. They keep their place
// in the search state.
void DeleteFlights(Context& context);

// After the flight at that place of the plan was changed elsewhere: a search result of it follows, in the
// list too.
void RefreshSearchResult(Context& context, std::int32_t flightPlace);

}  // namespace orlo
