#pragma once

#include <filesystem>

#include "Fleet.h"

namespace orlo::world {

// Writes the aircraft folders of the fleet into the existing folder: configuration files, models in the three
// layouts that keep a radius, texture folders and flight-model files. With faulty variants in the fleet,
// folders follow whose every variant shows one fault that a scan must bear. Throws std::runtime_error when a
// file cannot be written.
void WriteAircraft(const std::filesystem::path& folder, const Fleet& fleet);

}  // namespace orlo::world
