#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// The views that show the plan are reset, not patched, after everything that changes the traffic.

// The tab Export/Search: empties list and search state, fills cmExportAircraft anew, sets the buttons.
void ResetExportView(Context& context);

// Enables export, print, edit and delete exactly while lvExPreview holds a result.
void EnableResultCommands(MainForm& form);

// Writes the number of results into lblExPreview.
void ShowResultCount(MainForm& form);

// The tab Timetable: empties the list and sets the buttons.
void ResetTimetableView(Context& context);

// The tab Move: fills cmSource and cmDest from the plan's airports and sets the buttons.
void ResetMoverView(Context& context);

// Before a plan is opened all commands that need one are disabled.
void DisablePlanCommands(Context& context);
// Those that stand open with every plan.
void EnablePlanCommands(Context& context);

}  // namespace orlo
