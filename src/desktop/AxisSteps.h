#pragma once

#include <QString>

namespace orlo {

// The distance between two marks of an axis of values that is `range` long, so that there are `most` of them
// at most, 1 at least: 1, 2 or 5 times a power of ten. Of whole values no fraction. More than 0, also where
// the range isn't.
double ValueStep(double range, int most, bool whole);

// The same for an axis in seconds: a part of a minute, of an hour or of a day as clocks have it.
double TimeStep(double range, int most);

// Of so many names along an axis, each how many-th is shown so that there are `most` at most.
int NameStep(int names, int most);

// With so many decimals unless it is whole. Huge numbers by their power of ten.
QString ValueText(double value, int decimals = 1);
// "HH:MM", or "HH:MM:SS" where it is no whole minute; the end of the day is "24:00".
QString ClockText(double seconds);

}  // namespace orlo
