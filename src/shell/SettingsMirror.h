#pragma once

#include <cstdint>

#include "mainwindow/Context.h"
#include "mainwindow/SettingsTable.h"

namespace orlo {

// The settings and their mirrors in session and main window. They are read once at the start and written once
// at a normal exit.

void ReadSwitches(Context& context);     // menu ticks, shuffle options, limits, editor switches, start number
void ReadRecentLists(Context& context);  // and both recent menus
void ReadSimulatorFolder(Context& context);
void ReadZones(Context& context);
void ReadWindowPlace(Context& context);

// All of it in the order of the store's tradition; the window's place only where the front end keeps it.
void WriteSettings(Context& context);

// Sets a turn-around limit and checks its menu entry; a value that is none of the menu's becomes
// kNoTurnAroundLimit.
void SetLimit(Context& context, const LimitChoice& choice, std::int32_t value);

}  // namespace orlo
