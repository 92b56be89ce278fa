#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// A tick entry: inverts its switch and its check mark.
void OnSwitch(Context& context, Event& event);

// An entry of one of the two turn-around groups.
void OnTurnAround(Context& context, Event& event);

// Asks for the simulator's folder. A new one takes the place of what the machine-wide settings tell, and the
// airports of the other one are forgotten; installed aircraft are read when a plan is opened.
void ChooseSimulatorFolder(Context& context);

// Deletes AFDCache.dat and empties the airports in memory, so that the next use reads the scenery anew.
void DeleteSceneryCache(Context& context);

}  // namespace orlo
