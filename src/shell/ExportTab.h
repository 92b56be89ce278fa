#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"
#include "operations/SearchFlights.h"

namespace orlo {

// The commands of the tab Export/Search, and the reports of the menu "Analyze", which fill its list.

void OnPreview(Context& context);

// Runs the search of a report and brings the tab to the front.
void ShowReport(Context& context, SearchMode mode);

// Shows the times of the list in the zone that was chosen.
void OnExportZone(Context& context);

// Delete and Insert in the list press the buttons "Delete" and "Add".
void OnExportKey(Context& context, Event& event);

}  // namespace orlo
