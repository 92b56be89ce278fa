#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "Airports.h"
#include "Fleet.h"

namespace orlo::world {

// Writes a project of three plans into the existing folder, each plan in a folder of its own. The plans share
// aircraft, and their numbers clash: each plan counts its own from 1. The project file holds full paths.
void WriteProject(const std::filesystem::path& folder, const std::vector<Airport>& airports,
                  const Fleet& fleet, std::uint64_t seed);

// Copies the stand-ins for the outside tools from the folder of this program, where they stand, into the
// existing folder, under the names that the planner looks for.
void CopyTools(const std::filesystem::path& from, const std::filesystem::path& folder);

}  // namespace orlo::world
