#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

EventTable MainEvents();
EventTable SplashEvents();
EventTable AboutEvents();
EventTable FlightEditEvents();

// A procedure that needs nothing of its event, as an entry of a table.
template <auto Procedure>
void Run(Context& context, Event&) {
    Procedure(context);
}

// The table of a form; empty for a form without events.
EventTable EventsOf(const Forms& forms, const Form& form);

// The entry that an event runs; null where nothing is to run. Timers are looked up in the main window's
// table.
const EventEntry* FindEvent(EventTable table, const Event& event);
const EventEntry* FindEvent(const Context& context, const Event& event);

// Runs what a click on the button runs, where the button is enabled: keys that stand for buttons.
void RunButton(Context& context, Button& button);

}  // namespace orlo
