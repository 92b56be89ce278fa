#pragma once

#include <vector>

#include "core/AircraftRecords.h"
#include "core/AirlineRecords.h"
#include "core/PlanRecords.h"

namespace orlo {

// All sets of the hierarchy in the order of the result log: global, regions, countries, states, cities,
// airports. The pointers hold until a list of `sets` changes.
std::vector<AirlineSet*> ListAirlineSets(AirlineSets& sets);

// Replaces the aircraft of all entries of all sets, and runs NormalisePercents for each set. A plan aircraft
// stands for the first installed aircraft of its title, case aside; one whose title isn't installed is left
// out. In the order of the plan each goes into all entries of its airline's name, case aside. Returns those
// without an airline.
std::vector<AirlineAircraft> MatchAircraft(const std::vector<PlanAircraft>& planAircrafts,
                                           const std::vector<FSAircraft>& fsAircrafts, AirlineSets& sets);

// Sets PlannedPercent from Percent. In order, a Percent of 1 or more that would take the sum past 100, or
// whose entry has no aircraft, becomes -1. The rest of 100 is divided by the number of entries with aircraft
// and a Percent below 1; those with -1 get that share, all others their Percent. Without such entries the
// rest is spread evenly over the stated percents. Fractions are dropped; any other PlannedPercent stays as it
// was.
void NormalisePercents(AirlineSet& set);

}  // namespace orlo
