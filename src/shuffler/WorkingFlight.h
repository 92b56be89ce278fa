#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/FlightView.h"

namespace orlo {

// A leg while the shuffle decides its flight. What the shuffle doesn't change is lent by the flight's row.
struct WorkingLeg {
    std::string_view DepartTime;
    std::string ETA;
    bool FixedETA = false;
    std::string FlightLevel;
    std::string_view NumberMode;
    std::string_view FlightNumber;
    std::string_view Destination;
    std::int32_t Airport = -1;   // number of the Destination in the run's RouteAirports
    std::int32_t Distance = -1;  // nautical miles; -1 unknown
};

// A flight while the shuffle decides it. One is used for all flights in turn, to reuse its buffers.
struct WorkingFlight {
    std::string_view ACNumber;
    std::string TailNumber;
    std::string_view Percent;
    std::string_view Period;
    std::string_view FlightType;
    std::int32_t LegCount = 0;
    std::vector<WorkingLeg> Legs;  // the first LegCount are the flight's

    WorkingLeg& LegAt(std::int32_t index) { return Legs[static_cast<std::size_t>(index)]; }
    const WorkingLeg& LegAt(std::int32_t index) const { return Legs[static_cast<std::size_t>(index)]; }
    // A leg starts where the one before it ends, and leg 0 where the last one ends.
    const WorkingLeg& LegBefore(std::int32_t index) const {
        return LegAt((index > 0 ? index : LegCount) - 1);
    }
};

// Fills `flight` from a row, which must outlive its use. Airport and Distance are left for the caller.
void LoadFlight(const FlightView& row, WorkingFlight& flight);

// Lends all fields of the flight to `lent`; they hold until the flight is loaded anew.
void LendFields(const WorkingFlight& flight, LentFlight& lent);

}  // namespace orlo
