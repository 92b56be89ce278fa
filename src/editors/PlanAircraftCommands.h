#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Commands of frmAircraftEdit on the plan's aircraft. Number, speed, title and substitute take the current
// row of lvAircrafts and do nothing without one; an answer that can't be used ends them with nothing changed,
// and no message.

// After a question, marks all flights of the selected aircraft as removed, takes the aircraft out, and tells
// how many flights there were. The others keep their numbers.
void DeletePlanAircraft(Context& context);

// Asks for another number, again while an aircraft of the plan has it; the flights follow.
void ChangeAircraftNumber(Context& context);
void ChangeCruiseSpeed(Context& context);
void ChangeAircraftTitle(Context& context);

// After a question, gives all flights of the current aircraft to the one chosen in cmAircraft, and tells how
// many there were.
void SubstituteAircraft(Context& context);

}  // namespace orlo
