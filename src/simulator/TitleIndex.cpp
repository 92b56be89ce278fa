#include "simulator/TitleIndex.h"

namespace orlo {

TitleIndex::TitleIndex(const std::vector<FSAircraft>& fsAircrafts) {
    places_.reserve(fsAircrafts.size());
    std::int32_t place = 0;
    for (const FSAircraft& aircraft : fsAircrafts) places_.try_emplace(aircraft.Title, place++);
}

std::int32_t TitleIndex::Find(std::string_view title) const {
    const auto found = places_.find(title);
    return found == places_.end() ? -1 : found->second;
}

std::vector<std::int32_t> InstalledPlaces(const Session& session) {
    const TitleIndex titles(session.FSAircrafts);
    std::vector<std::int32_t> places;
    places.reserve(session.PlanAircrafts.size());
    for (const PlanAircraft& aircraft : session.PlanAircrafts) places.push_back(titles.Find(aircraft.Title));
    return places;
}

KeyedIndex<std::int32_t> InstalledPlacesByNumber(const Session& session) {
    const std::vector<std::int32_t> places = InstalledPlaces(session);
    KeyedIndex<std::int32_t> byNumber;
    byNumber.Reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] >= 0) byNumber.Add(session.PlanAircrafts[i].ACNumber, places[i]);
    }
    return byNumber;
}

}  // namespace orlo
