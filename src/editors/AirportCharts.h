#pragma once

#include "core/AirportRecord.h"
#include "forms/Chart.h"

namespace orlo {

// Pictures of what an airport's report tells. A scenery file may hold any number, so both are small whatever
// it claims; their notes say what was left out.

// The runways by true heading, to a tenth of a degree, with lengths and widths in metres, in the order of the
// record. An end is closed where aircraft neither take off nor land. Helipads are left out, and so is a
// runway without a finite heading or a length of 1 m to 100 km; of more than 24 the longest are taken. A
// width below 0 or beyond the longest length counts as unknown.
ChartContent RunwayChart(const AirportRecord& airport);

// How many parkings of each class have each radius: one plot, its places the radii in metres to one decimal,
// its series the classes that occur, by their code, with those of no class in a last one. More than 20 radii
// are grouped, each group named by where it begins. A radius that isn't between 0 and 1 km is left out;
// without any other there is no plot.
ChartContent ParkingChart(const AirportRecord& airport);

}  // namespace orlo
