#include "operations/MatchedAircraft.h"

#include "simulator/TitleIndex.h"

namespace orlo {

MatchedAircraft::MatchedAircraft(const Session& session) : session_(session) {
    const std::vector<std::int32_t> installed = InstalledPlaces(session);
    entries_.reserve(installed.size());
    places_.reserve(installed.size());
    for (std::size_t i = 0; i < installed.size(); ++i) {
        if (installed[i] < 0) continue;
        entries_.push_back({session.PlanAircrafts[i].ACNumber, installed[i]});
        places_.try_emplace(entries_.back().acNumber, installed[i]);
    }
}

const FSAircraft* MatchedAircraft::Find(std::string_view acNumber) const {
    const std::int32_t place = Place(acNumber);
    return place < 0 ? nullptr : &At(place);
}

std::int32_t MatchedAircraft::Place(std::string_view acNumber) const {
    const auto found = places_.find(acNumber);
    return found == places_.end() ? -1 : found->second;
}

}  // namespace orlo
