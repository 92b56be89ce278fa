#pragma once

#include <string>

namespace orlo::world {

// A place on the sphere of one airport, prepared for many distances.
struct UnitVector {
    double X = 0, Y = 0, Z = 0;
};

// Angles in hundredths of a minute of arc, north and east positive. The decimals of the minutes are dropped
// first, as the planner does, so that leg times here are those that it computes.
UnitVector ToUnitVector(int latitude, int longitude);

// The square of the straight line through the sphere: grows with the distance and is cheap to compare.
double SquaredChord(const UnitVector& from, const UnitVector& to);

// The square of the line that belongs to a distance, in nautical miles up to half of the equator.
double SquaredChordOf(int distance);

// Nautical miles for a square of the line.
int DistanceOf(double squaredChord);

// A coordinate as the plan's text files write it, as in "N47* 27.57'" for 284757 with the letters "NS" (or
// "EW").
std::string CoordinateText(int angle, const char* letters);

}  // namespace orlo::world
