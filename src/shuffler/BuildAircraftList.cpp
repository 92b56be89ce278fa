#include "shuffler/BuildAircraftList.h"

#include <algorithm>
#include <limits>

#include "core/PlanSideFiles.h"
#include "core/Text.h"

namespace orlo {
namespace {

std::int32_t HighestNumber(const Session& session) {
    std::int32_t highest = 0;
    for (const PlanAircraft& aircraft : session.PlanAircrafts) {
        highest = std::max(highest, AircraftNumber(aircraft.ACNumber));
    }
    return highest;
}

}  // namespace

void BuildAircraftList(std::span<const CheckedAircraft> checked, Session& session) {
    session.PlanAircrafts.clear();
    std::int64_t number = session.StartNumber;
    for (const CheckedAircraft& aircraft : checked) {
        const FSAircraft& installed = session.FSAircrafts[static_cast<std::size_t>(aircraft.FSIndex)];
        session.PlanAircrafts.push_back(
            {Concat("AC#", number++), aircraft.Title, std::to_string(installed.CruiseSpeed), 0});
    }
    session.MaxACNumber = HighestNumber(session);
}

std::int32_t NextStartNumber(const Session& session) {
    const std::int32_t highest = HighestNumber(session);
    return highest < std::numeric_limits<std::int32_t>::max() ? highest + 1 : highest;
}

}  // namespace orlo
