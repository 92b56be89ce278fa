#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

EventTable MainEvents();

// The table of a form; empty for a form without events.
EventTable EventsOf(const Forms& forms, const Form& form);

// The entry that an event runs; null where nothing is to run.
const EventEntry* FindEvent(const Context& context, const Event& event);

}  // namespace orlo
