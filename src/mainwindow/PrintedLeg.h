#pragma once

#include <string>
#include <string_view>

#include "core/FlightList.h"
#include "simulator/PlanPositions.h"

namespace orlo {

// Printed texts have CR LF between their lines.
inline constexpr std::string_view kPrintedLineEnd = "\r\n";

// Appends the printed line of a leg: two tabs, "FROM - TO No. NUMBER FLlevel DISTANCEnm DEPART ETA" and the
// line end. The times are as the plan holds them.
void AppendPrintedLeg(std::string& text, const PlanPositions& positions, std::string_view from,
                      const LegView& leg);

}  // namespace orlo
