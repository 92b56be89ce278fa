#pragma once

#include <cstdint>

namespace orlo {

// The levels and distances of a flight's legs: levels in hundreds of feet, distances in nautical miles.
struct FlightLimits {
    std::int32_t maxLevel = -1;
    std::int32_t maxDistance = -1;
    std::int32_t minLevel = 999999;
    std::int32_t minDistance = 999999;
};

// What the airports of a route allow: the shortest runway, the smallest parking radius, the surface class.
struct RouteNeeds {
    std::int32_t minRunway = 0;
    std::int32_t minParking = 0;
    std::int32_t surface = 0;  // SurfaceClass; any other value is none
};

}  // namespace orlo
