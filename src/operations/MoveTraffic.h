#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/Plan.h"

namespace orlo {

// What is moved between which airports. A leg is eligible where its Destination is `source`, case and all,
// and a list holds its flight's aircraft number.
struct TrafficMove {
    std::span<const std::string_view> numberLists;  // such as ",AC#1,AC#7,", in the order of the walk
    std::string_view source;
    std::string_view destination;
    std::int32_t percent = 100;  // 100 and more move every eligible leg, 0 and less none
};

struct MovedLegs {
    std::int64_t seen = 0;  // eligible legs
    std::int64_t moved = 0;
};

// Walks the lists in order, for each list the flights of its aircraft in the order of the plan, removed ones
// too, and gives an eligible leg the new Destination where fewer than `percent` of those seen so far, whole
// percents, were moved. A flight whose number stands in several lists belongs to the first of them. The cost
// is that of walking the legs, whatever the number of lists.
MovedLegs MoveTraffic(Plan& plan, const TrafficMove& move);

}  // namespace orlo
