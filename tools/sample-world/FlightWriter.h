#pragma once

#include <cstdint>
#include <vector>

#include "Airports.h"
#include "Fleet.h"
#include "Output.h"

namespace orlo::world {

// Writes `count` flights, with a comment line now and then. Aircraft i of the fleet is "AC#" i + 1. Some
// flights fit no aircraft: they visit an airport that is not in the scenery, fly further than anything can,
// or too high.
void WriteFlights(TextFile& file, const std::vector<Airport>& airports, const Fleet& fleet, int count,
                  std::uint64_t seed);

}  // namespace orlo::world
