#pragma once

#include <string>
#include <vector>

#include "core/AirportRecord.h"
#include "mainwindow/Context.h"

namespace orlo {

// The text of an airline configuration without airlines: a section for each region and each country of the
// airports, in the order in which they first appear.
std::string FormatAirlineSkeleton(const std::vector<AirportRecord>& airports);

// Writes "New ORLO_AL.CFG" into the program folder; reads the scenery first where it isn't read yet.
void GenerateAirlineConfig(Context& context);

}  // namespace orlo
