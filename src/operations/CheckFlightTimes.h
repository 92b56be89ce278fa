#pragma once

#include <cstdint>
#include <string>

#include "core/FlightList.h"

namespace orlo {

struct FlightTimesCheck {
    bool Right = true;
    std::string Text;  // the fault words joined by " | "; empty when right
};

// Whether the round fits into its period, every departure comes after the arrival before it, and each time on
// the ground, that between two rounds too, is at least `minimum` minutes and at most `maximum` hours
// (Switches::TATime and MaxTATime). A time that can't be read takes part in no step; the rest is measured.
FlightTimesCheck CheckFlightTimes(const FlightView& flight, std::int32_t minimum, std::int32_t maximum);

}  // namespace orlo
