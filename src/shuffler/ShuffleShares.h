#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/AirlineRecords.h"

namespace orlo {

// What a shuffle gave each set, as its log and its window tell it.

struct SetOfLevel {
    std::string_view level;  // "Region", "Country", "State", "City" or "Airport"
    std::string_view name;   // "Global" of the global set, which is a region here
    const AirlineSet* set = nullptr;
};

// All sets: global, regions, countries, states, cities, airports, each list in the order of the file. They
// hold until a list of `sets` changes.
std::vector<SetOfLevel> SetsByLevel(const AirlineSets& sets);

// Such as "Country: Europe/Austria".
std::string Heading(const SetOfLevel& set);

// The entry's part of the set's flights, 0 where the set has none.
double AchievedPercent(const AirlineEntry& entry, const AirlineSet& set);

}  // namespace orlo
