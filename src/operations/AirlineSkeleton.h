#pragma once

#include <string>
#include <vector>

#include "core/AirportRecord.h"
#include "mainwindow/Context.h"

namespace orlo {

// The text of an airline configuration without airlines: a section for each region and each country of the
// airports, in the order in which they first appear.
std::string FormatAirlineSkeleton(const std::vector<AirportRecord>& airports);

// Reads the scenery where it isn't known yet and writes "New ORLO_AL.CFG" into the program folder.
void GenerateAirlineConfig(Context& context);

}  // namespace orlo
