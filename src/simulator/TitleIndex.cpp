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

}  // namespace orlo
