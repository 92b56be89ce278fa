#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The event tables of the forms. Those of the main window's panes are in PaneFacts.
EventTable MainEvents();  // of the main window itself and its tab strip
EventTable MenuEvents();
EventTable SplashEvents();
EventTable AboutEvents();
EventTable FlightEditEvents();
EventTable AircraftEditEvents();
EventTable TTStatisticsEvents();
EventTable FSAircraftEditEvents();
EventTable ResizeGatesEvents();
EventTable KeptFilesEvents();
EventTable SharesEvents();
EventTable TextEditEvents();
EventTable DistanceEvents();
EventTable AirportSearchEvents();
EventTable AirportInfoEvents();

// Makes a table's procedure of one that doesn't need the event.
template <auto Procedure>
void Run(Context& context, Event&) {
    Procedure(context);
}

// For the close box of the main window and "Exit". Refuses the event where the user cancels.
void CloseMainWindow(Context& context, Event& event);

// For a click on a column header of any list.
void SortByColumn(Context& context, Event& event);

}  // namespace orlo
