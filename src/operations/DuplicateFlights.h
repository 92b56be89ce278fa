#pragma once

#include <cstdint>
#include <vector>

#include "core/FlightList.h"

namespace orlo {

// For each flight, removed ones too, the place of the first flight that equals it: in all its texts, case
// aside. Whether an arrival is fixed makes no difference, nor does the Removed mark.
std::vector<std::int32_t> FirstOfEqualFlights(const FlightList& flights);

}  // namespace orlo
