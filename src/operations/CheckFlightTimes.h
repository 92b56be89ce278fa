#pragma once

#include <cstdint>
#include <string>

#include "core/FlightList.h"

namespace orlo {

struct FlightTimesCheck {
    bool Right = true;
    std::string Text;  // the fault words joined by " | "; empty when right
};

// Whether the round fits into its period, no departure is before the arrival in front of it, and each time on
// the ground, between two rounds too, is at least `minimum` minutes and at most `maximum` hours
// (Switches::TATime and MaxTATime). What needs a time that can't be read is not checked; all else is.
FlightTimesCheck CheckFlightTimes(const FlightView& flight, std::int32_t minimum, std::int32_t maximum);

}  // namespace orlo
