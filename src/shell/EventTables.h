#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The tables of the main window besides those of its panes (PaneFacts.h), and of the other forms.
EventTable MainEvents();  // of the window itself and its tabs
EventTable MenuEvents();
EventTable SplashEvents();
EventTable AboutEvents();
EventTable FlightEditEvents();

// A procedure that needs nothing of its event, as an entry of a table.
template <auto Procedure>
void Run(Context& context, Event&) {
    Procedure(context);
}

// The close box of the main window and its menu entry; refused where the user wants to stay.
void CloseMainWindow(Context& context, Event& event);

// A click on the head of a column of any list.
void SortByColumn(Context& context, Event& event);

}  // namespace orlo
