#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/RuleRecords.h"
#include "services/RandomSource.h"
#include "shuffler/RouteAirports.h"
#include "shuffler/WorkingFlight.h"

namespace orlo {

// What makes a flight true to the aircraft that the shuffle chose for it.

// A tail number by one of the patterns, which are separated by ",". In a pattern "!" becomes a digit, "." a
// letter, "?" one of both; with `removeMinus` every "-" goes. Empty patterns give an empty text without a
// draw. The first and the last of each choice come half as often as the others.
std::string CreateTailNumber(std::string_view patterns, bool removeMinus, RandomSource& random);

// VFR flights become IFR under aircraft that are not used or of class Large Prop and above, with the flight
// numbers switched on; under Micro and Mid Props they stay VFR with the flight numbers off.
void ApplyFlightRules(std::int32_t aircraftClass, WorkingFlight& flight);

// A new level for each leg, for the flight's type and the aircraft's levels, drawn for legs 1 to the last
// and then for leg 0.
void ApplyFlightLevels(const std::vector<FlightLevelRule>& rules, const FSAircraft& aircraft,
                       const RouteAirports& airports, RandomSource& random, WorkingFlight& flight);

// A new arrival time for each leg by the distance and the speed in knots; departures stay, and so do the
// marks of fixed arrivals.
void ApplyFlightTimes(std::int32_t speed, WorkingFlight& flight);

}  // namespace orlo
