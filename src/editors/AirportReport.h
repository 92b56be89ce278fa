#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/AirportRecord.h"

namespace orlo {

// All that the scenery tells about an airport, as a text of fixed-width columns; a longer field stays whole.
// Its lines end in CR LF, the last one too, and the rows of its tables start with a tab. Lengths are in feet,
// but for the greatest lengths for takeoff and landing, which are shown in the scenery's unit.
std::string AirportReport(const AirportRecord& airport);

// Its words for the scenery's codes: of a runway's surface, "Unknown" for any other code, and of a parking's
// class, empty for any other.
std::string_view SurfaceWord(std::int32_t code);
std::string_view ParkingClassWord(std::int32_t code);

}  // namespace orlo
