#pragma once

#include <vector>

#include "core/AircraftRecords.h"
#include "core/AirlineRecords.h"
#include "core/PlanRecords.h"

namespace orlo {

// All sets of the hierarchy in the order of the result log: global, regions, countries, states, cities,
// airports. The pointers hold until a list of `sets` changes.
std::vector<AirlineSet*> ListAirlineSets(AirlineSets& sets);

// Replaces the aircraft of all entries of all sets, and normalises the sets. A plan aircraft stands for the
// first installed aircraft of its title, case aside; one without is left out. It goes into each entry that
// bears its airline's name, case aside, in the order of the plan. Gives those whose airline text is empty.
std::vector<AirlineAircraft> MatchAircraft(const std::vector<PlanAircraft>& planAircrafts,
                                           const std::vector<FSAircraft>& fsAircrafts, AirlineSets& sets);

// Sets the planned percents by the percents as read and by which entries have aircraft. A percent that would
// take the sum past 100, and one of an entry without aircraft, becomes -1; entries with aircraft and -1 share
// what the others leave, and where all have a share the rest up to 100 is spread evenly. What doesn't divide
// is dropped. A planned percent that is told by none of this stays as it was.
void NormalisePercents(AirlineSet& set);

}  // namespace orlo
