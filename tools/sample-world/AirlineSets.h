#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "Airports.h"
#include "Fleet.h"

namespace orlo::world {

// Writes the airline file: one global set and sets for regions, countries, states, cities and airports, some
// seven sets for each airline. Where the world has too few places for them, sets of airports follow whose
// codes stand in no scenery. Throws std::runtime_error when the file cannot be written.
void WriteAirlineSets(const std::filesystem::path& path, const std::vector<Airport>& airports,
                      const Fleet& fleet, std::uint64_t seed);

}  // namespace orlo::world
