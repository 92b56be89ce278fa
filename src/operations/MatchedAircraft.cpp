#include "operations/MatchedAircraft.h"

#include "simulator/TitleIndex.h"

namespace orlo {

MatchedAircraft::MatchedAircraft(const Session& session) {
    const std::vector<std::int32_t> installed = InstalledPlaces(session);
    entries_.reserve(installed.size());
    for (std::size_t i = 0; i < installed.size(); ++i) {
        if (installed[i] < 0) continue;
        entries_.push_back(session.FSAircrafts[static_cast<std::size_t>(installed[i])]);
        entries_.back().ID = session.PlanAircrafts[i].ACNumber;
    }
    places_.reserve(entries_.size());
    std::int32_t place = 0;
    for (const FSAircraft& entry : entries_) places_.try_emplace(entry.ID, place++);
}

const FSAircraft* MatchedAircraft::Find(std::string_view acNumber) const {
    const std::int32_t place = Place(acNumber);
    return place < 0 ? nullptr : &entries_[static_cast<std::size_t>(place)];
}

std::int32_t MatchedAircraft::Place(std::string_view acNumber) const {
    const auto found = places_.find(acNumber);
    return found == places_.end() ? -1 : found->second;
}

}  // namespace orlo
