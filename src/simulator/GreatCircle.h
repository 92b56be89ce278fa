#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orlo {

// Navigation on a spherical earth measured in minutes of arc: one minute is one nautical mile.

// The angle in radians, 0 to pi, whose cosine is `x`. Nothing at 1 and -1, where its formula divides by zero,
// and beyond them.
std::optional<double> ArcCos(double x);

// A point in whole degrees and whole minutes; north and west are positive. Degrees and minutes bear the same
// sign.
struct Position {
    std::int32_t LatDegrees = 0;
    std::int32_t LatMinutes = 0;
    std::int32_t LonDegrees = 0;
    std::int32_t LonMinutes = 0;

    bool operator==(const Position&) const = default;
};

// Reads a coordinate as Airports.txt and the scenery hold it, for example "N47* 27.57'": a hemisphere letter,
// degrees, "*", minutes with decimals, which are dropped. "S" and "E" in either case give negative values.
// False for any other form; both outputs are then 0.
bool ParseCoordinate(std::string_view text, std::int32_t& degrees, std::int32_t& minutes);

// Nothing when either text is no coordinate.
std::optional<Position> ParsePosition(std::string_view latitude, std::string_view longitude);

// A position with what the formulas take from one point alone, in radians.
struct GreatCirclePoint {
    double Latitude = 0;
    double Longitude = 0;
    double SinLatitude = 0;
    double CosLatitude = 1;
    Position Place;
};
GreatCirclePoint PreparePoint(const Position& position);

// Whole nautical miles. -1 between a place and itself, and between opposite ends of the earth.
std::int32_t GreatCircleDistance(const GreatCirclePoint& from, const GreatCirclePoint& to);
std::int32_t GreatCircleDistance(const Position& from, const Position& to);

// Whole degrees, 0 to 359. -1 where the distance is -1, and where the angle can't be found (from a pole, or
// straight across one).
std::int32_t GreatCircleCourse(const GreatCirclePoint& from, const GreatCirclePoint& to);
std::int32_t GreatCircleCourse(const Position& from, const Position& to);

// Both in one go, for passes over many legs.
struct RouteMeasure {
    std::int32_t Distance = -1;  // nautical miles
    std::int32_t Course = -1;    // degrees
};
RouteMeasure MeasureRoute(const GreatCirclePoint& from, const GreatCirclePoint& to);

}  // namespace orlo
