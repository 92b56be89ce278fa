#include "shuffler/ShuffleShares.h"

#include "core/Text.h"

namespace orlo {

std::vector<SetOfLevel> SetsByLevel(const AirlineSets& sets) {
    std::vector<SetOfLevel> list = {{"Region", "Global", &sets.Global}};
    const auto add = [&list](std::string_view level, const std::vector<AirlineSet>& added) {
        for (const AirlineSet& set : added) list.push_back({level, set.Name, &set});
    };
    add("Region", sets.Regions);
    add("Country", sets.Countries);
    add("State", sets.States);
    add("City", sets.Cities);
    add("Airport", sets.Airports);
    return list;
}

std::string Heading(const SetOfLevel& set) {
    return Concat(set.level, ": ", set.name);
}

double AchievedPercent(const AirlineEntry& entry, const AirlineSet& set) {
    return set.Flights == 0 ? 0 : static_cast<double>(entry.Flights) * 100 / set.Flights;
}

}  // namespace orlo
