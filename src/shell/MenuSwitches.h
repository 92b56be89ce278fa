#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// For a menu entry with a check mark: inverts its switch and the mark.
void OnSwitch(Context& context, Event& event);

// For an entry of the minimum or maximum turn-around: sets the limit that the entry stands for.
void OnTurnAround(Context& context, Event& event);

// Asks for the simulator's folder, which then replaces the one in the machine-wide settings. Another folder
// than before also deletes the scenery cache. The installed aircraft are read when the next plan is opened. A
// cancel changes nothing.
void ChooseSimulatorFolder(Context& context);

// Deletes AFDCache.dat and empties the airports in memory: the next use reads the scenery anew.
void DeleteSceneryCache(Context& context);

}  // namespace orlo
