#pragma once

#include <string>

#include "core/AirportRecord.h"

namespace orlo {

// All that the scenery tells about an airport, as a text of fixed-width columns; a longer field stays whole.
// Its lines end in CR LF, the last one too, and the rows of its tables start with a tab. Lengths are in feet,
// but for the greatest lengths for takeoff and landing, which are shown in the scenery's unit.
std::string AirportReport(const AirportRecord& airport);

}  // namespace orlo
