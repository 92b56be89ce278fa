#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The commands and fields of the tab Timetable. They read the plan and change nothing in it but by the flight
// editor.

// Fills lvTimetable with the events that the fields ask for. A time or percent that can't be read leaves it
// empty.
void ShowTimetable(Context& context);
void PrintTimetable(Context& context);
void SaveTimetable(Context& context);

// Opens the flight of the current row in the editor, at the row's leg. The rows stay as they are.
void EditTimetableFlight(Context& context);

// Turns the times of the list from the zone stored last to the chosen one, and stores that.
void OnTimetableZone(Context& context);

// The fields can't be left with what is no time, or no percent from 1 to 100.
void OnLeaveTimetableTime(Context& context, Event& event);
void OnLeaveTimetablePercent(Context& context, Event& event);

}  // namespace orlo
