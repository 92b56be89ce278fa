#pragma once

#include <cstdint>
#include <span>

#include "mainwindow/Context.h"

namespace orlo {

// The settings and their mirrors in session and main window. They are read once at the start and written once
// at a normal exit.

void ReadSwitches(
    Context& context);  // menu ticks, shuffle options, turn-around limits, editor switches, start number
void ReadRecentLists(Context& context);  // and both recent menus
void ReadSimulatorFolder(Context& context);
void ReadZones(Context& context);  // and the fields of the timetable
void ReadWindowPlace(Context& context);

// All of it in the order of the store's tradition; the window's place only where the front end keeps it.
void WriteSettings(Context& context);

// The menu entries of the turn-around limits with their values, "off" first.
struct TurnAroundLimit {
    MenuEntry MainForm::*entry;
    std::int32_t value;  // minutes for the minimum, hours for the maximum, or kNoTurnAroundLimit
};
std::span<const TurnAroundLimit> MinimumTurnArounds();
std::span<const TurnAroundLimit> MaximumTurnArounds();

// A turn-around limit that is none of the menu's becomes kNoTurnAroundLimit; checks the entry of the limit.
void SetTATime(Context& context, std::int32_t minutes);
void SetMaxTATime(Context& context, std::int32_t hours);

}  // namespace orlo
