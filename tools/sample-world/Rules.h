#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

#include "Airports.h"
#include "Fleet.h"

namespace orlo::world {

// One line of the flight-level file, in its order: legs of a length in nautical miles and a course in degrees
// fly on a grid of levels. A length of -1 stands for visual flights.
struct LevelRule {
    int DistanceFrom, DistanceTo, CourseFrom, CourseTo, LevelFrom, LevelTo, LevelStep;
};
extern const std::vector<LevelRule> LevelRules;

// The pattern of tail numbers ("!" a digit, "." a letter) of a country; an invented one for most.
std::string_view TailPatternOf(std::string_view country);

// Writes the six rule files of the program folder, which exists. Throws std::runtime_error when one cannot be
// written.
void WriteRules(const std::filesystem::path& folder, const std::vector<Airport>& airports, const Fleet& fleet,
                std::uint64_t seed);

}  // namespace orlo::world
