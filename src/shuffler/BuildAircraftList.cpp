#include "shuffler/BuildAircraftList.h"

#include <algorithm>
#include <limits>

#include "core/PlanSideFiles.h"
#include "core/Text.h"

namespace orlo {
namespace {

std::int32_t HighestNumber(const Plan& plan) {
    std::int32_t highest = 0;
    for (const PlanAircraft& aircraft : plan.PlanAircrafts) {
        highest = std::max(highest, AircraftNumber(aircraft.ACNumber));
    }
    return highest;
}

}  // namespace

void BuildAircraftList(std::span<const CheckedAircraft> checked, const Fleet& fleet, std::int32_t startNumber,
                       Plan& plan) {
    plan.PlanAircrafts.clear();
    std::int64_t number = startNumber;
    for (const CheckedAircraft& aircraft : checked) {
        const FSAircraft& installed = fleet.FSAircrafts[static_cast<std::size_t>(aircraft.FSIndex)];
        plan.PlanAircrafts.push_back(
            {Concat("AC#", number++), aircraft.Title, std::to_string(installed.CruiseSpeed), 0});
    }
    plan.MaxACNumber = HighestNumber(plan);
}

std::int32_t NextStartNumber(const Plan& plan) {
    const std::int32_t highest = HighestNumber(plan);
    return highest < std::numeric_limits<std::int32_t>::max() ? highest + 1 : highest;
}

}  // namespace orlo
