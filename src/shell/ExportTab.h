#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"
#include "operations/SearchFlights.h"

namespace orlo {

// The commands of the tab Export/Search, and the reports of the menu "Analyze", which fill its list.

void OnPreview(Context& context);

// The tab comes to the front, so that the report is seen.
void ShowReport(Context& context, SearchMode mode);

// The list shows its times in the zone that was chosen.
void OnExportZone(Context& context);

// Delete and Insert on the list stand for its buttons.
void OnExportKey(Context& context, Event& event);

}  // namespace orlo
