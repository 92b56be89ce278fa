#pragma once

#include <string>
#include <string_view>

#include "core/Text.h"

namespace orlo {

// The line of an aircraft or class in a file, whose ten values behind the name are those that class profiles,
// class entries and installed aircraft have in common.
template <typename Limits>
std::string FormatLimits(std::string_view name, const Limits& limits) {
    return Concat(name, ',', limits.CruiseSpeed, ',', limits.MinFL, ',', limits.MaxFL, ',', limits.MinRange,
                  ',', limits.MaxRange, ',', limits.RunwayLength, ',', limits.RunwayTypes, ',',
                  limits.MinParkingRadius, ',', limits.ParkingTypes, ',', limits.IFRPercent);
}

}  // namespace orlo
