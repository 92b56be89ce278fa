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

// Adapts a flight to the aircraft that the shuffle chose for it.

// A tail number by one of the patterns, which are separated by ",". In a pattern "!" becomes a digit, "." a
// letter, "?" either; with `removeMinus` every "-" goes. Empty patterns give an empty text without a draw. In
// each draw the first and the last choice come half as often as the others.
std::string CreateTailNumber(std::string_view patterns, bool removeMinus, RandomSource& random);

// A VFR flight becomes IFR, with its flight numbers on, under an aircraft of class Not Used or of Large Prop
// and above; under a Micro or Mid Prop it stays VFR, with its flight numbers off.
void ApplyFlightRules(std::int32_t aircraftClass, WorkingFlight& flight);

// A new level for each leg, for the flight's type and the aircraft's levels, drawn for legs 1 to the last
// and then for leg 0.
void ApplyFlightLevels(const std::vector<FlightLevelRule>& rules, const FSAircraft& aircraft,
                       const RouteAirports& airports, RandomSource& random, WorkingFlight& flight);

// A new arrival time for each leg by the distance and the speed in knots; departures stay, and so do the
// marks of fixed arrivals.
void ApplyFlightTimes(std::int32_t speed, WorkingFlight& flight);

}  // namespace orlo
