#pragma once

#include <cstdint>
#include <span>

#include "core/Session.h"

namespace orlo {

// Replaces the plan's aircraft by one for each checked aircraft, in order, numbered from `startNumber`.
void BuildAircraftList(std::span<const CheckedAircraft> checked, const Fleet& fleet, std::int32_t startNumber,
                       Plan& plan);

// One more than the highest number in use by the plan's aircraft; 1 without any.
std::int32_t NextStartNumber(const Plan& plan);

}  // namespace orlo
