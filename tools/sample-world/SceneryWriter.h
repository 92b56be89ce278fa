#pragma once

#include <filesystem>
#include <vector>

#include "Airports.h"

namespace orlo::world {

// Writes the scenery files of the airports into the existing folder, a thousand airports a file, and one file
// without airports that a reader must pass over. Throws std::runtime_error when a file cannot be written.
void WriteScenery(const std::filesystem::path& folder, const std::vector<Airport>& airports);

}  // namespace orlo::world
