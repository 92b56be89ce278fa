#pragma once

#include <span>
#include <string>
#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// The aircraft of the current row of frmFSAircraftEdit; null without one.
FSAircraft* EditedAircraft(Context& context);

// All variants of the aircraft.cfg that holds `aircraft`, one of the fleet; they stand together.
std::span<FSAircraft> VariantsOfFile(Fleet& fleet, const FSAircraft& aircraft);

// A typed text as a value of an aircraft.cfg: without blanks around it, and with a blank for each ";", which
// would begin a comment.
std::string ConfigValue(std::string_view typed);

// After values of one or many aircraft have changed: shows the rows anew and enables cmdSave and cmdUndo.
void ShowAircraftChanged(Context& context);

}  // namespace orlo
