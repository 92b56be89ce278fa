#pragma once

#include <string>
#include <vector>

#include "core/AirportRecord.h"
#include "core/FlightList.h"

namespace orlo {

// Lists of the scenery's airports in the form of Airports.txt: code, latitude, longitude, elevation in feet,
// with commas between.

// All of them, in their order.
std::string FormatSceneryAirports(const std::vector<AirportRecord>& airports);

// Those at which a leg of the flights ends, removed flights included, each once, in the order in which they
// first appear. The code is in capitals; of several records of one code the first counts. A code without a
// record is left out.
std::string FormatPlanAirports(const FlightList& flights, const std::vector<AirportRecord>& airports);

}  // namespace orlo
