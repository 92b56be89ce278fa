#pragma once

#include <cstdint>
#include <vector>

#include "core/FlightList.h"

namespace orlo {

// For each flight, removed ones too, the place of the first flight whose texts are all equal, case aside. The
// marks of fixed arrivals and the Removed mark don't count.
std::vector<std::int32_t> FirstOfEqualFlights(const FlightList& flights);

}  // namespace orlo
