#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// After every change of the traffic as a whole, the views of the plan are reset, not patched.

// The tab Export/Search: empties list and search state, fills cmExportAircraft anew.
void ResetExportView(Context& context);

// Writes the number of results into lblExPreview.
void ShowResultCount(MainForm& form);

// The tab Timetable: empties the list.
void ResetTimetableView(Context& context);

// The tab Move: fills cmSource and cmDest from the plan's airports.
void ResetMoverView(Context& context);

// Takes the numbers of results out of lblExPreview and out of the label of the timetable.
void ForgetResultCounts(MainForm& form);

}  // namespace orlo
