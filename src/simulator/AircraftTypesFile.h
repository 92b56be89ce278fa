#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/AircraftRecords.h"

namespace orlo {

// A table of aircraft types: a line for each aircraft that `isListed`, in their order, with its key, title,
// cruise speed (knots), least and greatest level (100 ft), least and greatest range (nautical miles), runway
// length (metres) and types, least parking radius, parking types and IFR percent, with commas between. The
// key is the model, or the type of an aircraft without a model, with "." and the texture behind it where it
// has one. From the second aircraft of a key on, case aside, "#" and its count follow.
std::string FormatAircraftTypes(const std::vector<FSAircraft>& aircraft,
                                const std::function<bool(const FSAircraft&)>& isListed);

}  // namespace orlo
