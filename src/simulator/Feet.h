#pragma once

#include <cstdint>

#include "core/Number.h"

namespace orlo {

// The scenery stores metres; what is shown and what the traffic compiler reads is in feet.
inline constexpr double kFeetPerMetre = 3.281;

inline std::int64_t WholeFeet(std::int32_t metres) {
    return static_cast<std::int64_t>(RoundHalfEven(metres * kFeetPerMetre));
}

}  // namespace orlo
