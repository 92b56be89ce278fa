#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Single edits of the plan through lvExPreview. A run of them is undone as one step.

// Opens the editor on the result of the current item; on acceptance the flight goes back into the plan and
// the item shows it. Nothing without a current item.
void EditFlight(Context& context);

// Opens the editor on a new flight between the plan's first aircraft and airport. On acceptance it goes to
// the end of the plan and of the list. On cancel it stays behind the results, uncounted, until the next
// search.
void AddFlight(Context& context);

// Asks, marks the selected flights Removed and takes them out of the list. They keep their place in the
// search state.
void DeleteFlights(Context& context);

}  // namespace orlo
