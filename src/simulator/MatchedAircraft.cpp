#include "simulator/MatchedAircraft.h"

#include <algorithm>

#include "core/Text.h"
#include "simulator/TitleIndex.h"

namespace orlo {

MatchedAircraft::MatchedAircraft(const Plan& plan, const Fleet& fleet) : plan_(plan), fleet_(fleet) {
    const TitleIndex titles(fleet.FSAircrafts);
    places_.reserve(plan.PlanAircrafts.size());
    // Room for all at once, so that numbers that differ in case alone stay in their order and the first is
    // found.
    installed_.Reserve(plan.PlanAircrafts.size());
    for (const PlanAircraft& aircraft : plan.PlanAircrafts) {
        const auto planPlace = static_cast<std::int32_t>(places_.size());
        places_.push_back(titles.Find(aircraft.Title));
        if (places_.back() < 0) continue;
        installed_.FindOrAdd(HashNoCase(aircraft.ACNumber), planPlace, [&](std::int32_t at) {
            return plan.PlanAircrafts[static_cast<std::size_t>(at)].ACNumber == aircraft.ACNumber;
        });
    }
}

bool MatchedAircraft::AllInstalled() const {
    return std::find(places_.begin(), places_.end(), -1) == places_.end();
}

std::int32_t MatchedAircraft::Place(std::string_view acNumber) const {
    const std::int32_t found = installed_.Find(HashNoCase(acNumber), [&](std::int32_t at) {
        return plan_.PlanAircrafts[static_cast<std::size_t>(at)].ACNumber == acNumber;
    });
    return found < 0 ? -1 : places_[static_cast<std::size_t>(found)];
}

std::int32_t MatchedAircraft::PlaceNoCase(std::string_view acNumber) const {
    const std::int32_t found = installed_.Find(HashNoCase(acNumber), [&](std::int32_t at) {
        return EqualNoCase(plan_.PlanAircrafts[static_cast<std::size_t>(at)].ACNumber, acNumber);
    });
    return found < 0 ? -1 : places_[static_cast<std::size_t>(found)];
}

}  // namespace orlo
