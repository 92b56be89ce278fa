#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orlo {

// Names in file order, and all of them in one text as "*NAME*", so that one search finds a name.
struct NameList {
    std::vector<std::string> Names;
    std::string SearchText;

    bool operator==(const NameList&) const = default;
};

// A line of the flight-level rules; distances in nautical miles, courses in degrees, levels in hundreds of
// feet, all bounds inclusive.
struct FlightLevelRule {
    std::int32_t DistanceFrom = 0;
    std::int32_t DistanceTo = 0;
    std::int32_t CourseFrom = 0;
    std::int32_t CourseTo = 0;
    std::int32_t LevelFrom = 0;
    std::int32_t LevelTo = 0;
    std::int32_t LevelStep = 0;  // 0: only LevelFrom

    bool operator==(const FlightLevelRule&) const = default;
};

}  // namespace orlo
