#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "Airports.h"
#include "Fleet.h"

namespace orlo::world {

// Writes FlightPlans.txt, Aircraft.txt and Airports.txt into the existing folder. The plan is written as it
// is drawn, so that its length costs no memory. Throws std::runtime_error when a file cannot be written.
void WritePlan(const std::filesystem::path& folder, const std::vector<Airport>& airports, const Fleet& fleet,
               int flightCount, std::uint64_t seed);

}  // namespace orlo::world
