#pragma once

#include <cstdint>

#include "mainwindow/Context.h"
#include "mainwindow/SettingsTable.h"

namespace orlo {

// The user's settings and what holds them while the program runs (mainwindow/SettingsTable.h). They are read
// at the start and written at a normal exit. A value that is missing takes its default.

void ReadSwitches(Context& context);     // menu ticks, shuffle options, limits, editor switches, start number
void ReadRecentLists(Context& context);  // fills both recent menus too
void ReadSimulatorFolder(Context& context);
void ReadZones(Context& context);
// Nothing where the front end keeps no place. Asks for the screen's centre where none is stored.
void ReadWindowPlace(Context& context);

// Writes the window's place, where the front end keeps it, then the others in the order of SettingRows.
void WriteSettings(Context& context);

// Sets a turn-around limit and checks its menu entry. A value for which the menu has no entry becomes "off".
void SetLimit(Context& context, const LimitChoice& choice, std::int32_t value);

}  // namespace orlo
