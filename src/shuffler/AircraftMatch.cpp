#include "shuffler/AircraftMatch.h"

#include <string_view>
#include <unordered_map>

#include "core/KeyedIndex.h"
#include "simulator/TitleIndex.h"

namespace orlo {
namespace {

// Texts lent by the records that are matched.
template <typename Value>
using LentIndex = std::unordered_map<std::string_view, Value, NoCaseHash, NoCaseEqual>;

constexpr std::int32_t kNoStatedShare = -1;

LentIndex<std::vector<AirlineEntry*>> IndexEntries(const std::vector<AirlineSet*>& list) {
    LentIndex<std::vector<AirlineEntry*>> entries;
    for (AirlineSet* set : list) {
        for (AirlineEntry& entry : set->Airlines) entries[entry.Name].push_back(&entry);
    }
    return entries;
}

struct ShareCounts {
    std::int32_t sum = 0;
    std::int32_t stated = 0;
    std::int32_t unstated = 0;
};

ShareCounts CountShares(AirlineSet& set) {
    ShareCounts counts;
    for (AirlineEntry& entry : set.Airlines) {
        const bool hasAircraft = !entry.Aircraft.empty();
        if (entry.Percent >= 1 && hasAircraft && counts.sum + entry.Percent <= 100) {
            counts.sum += entry.Percent;
            ++counts.stated;
            continue;
        }
        if (entry.Percent >= 1) entry.Percent = kNoStatedShare;
        if (hasAircraft) ++counts.unstated;
    }
    return counts;
}

}  // namespace

std::vector<AirlineSet*> ListAirlineSets(AirlineSets& sets) {
    std::vector<AirlineSet*> list{&sets.Global};
    for (auto* level : {&sets.Regions, &sets.Countries, &sets.States, &sets.Cities, &sets.Airports}) {
        for (AirlineSet& set : *level) list.push_back(&set);
    }
    return list;
}

std::vector<AirlineAircraft> MatchAircraft(const std::vector<PlanAircraft>& planAircrafts,
                                           const std::vector<FSAircraft>& fsAircrafts, AirlineSets& sets) {
    const std::vector<AirlineSet*> list = ListAirlineSets(sets);
    for (AirlineSet* set : list) {
        for (AirlineEntry& entry : set->Airlines) entry.Aircraft.clear();
    }

    const TitleIndex titles(fsAircrafts);
    const auto entries = IndexEntries(list);
    std::vector<AirlineAircraft> noAirlineAircraft;
    std::int32_t planIndex = -1;
    for (const PlanAircraft& planAircraft : planAircrafts) {
        ++planIndex;
        const std::int32_t place = titles.Find(planAircraft.Title);
        if (place < 0) continue;
        const AirlineAircraft aircraft{place, planIndex, 0};
        const std::string& airline = fsAircrafts[static_cast<std::size_t>(place)].Airline;
        if (airline.empty()) {
            noAirlineAircraft.push_back(aircraft);
        } else if (const auto found = entries.find(airline); found != entries.end()) {
            for (AirlineEntry* entry : found->second) entry->Aircraft.push_back(aircraft);
        }
    }

    for (AirlineSet* set : list) NormalisePercents(*set);
    return noAirlineAircraft;
}

void NormalisePercents(AirlineSet& set) {
    const ShareCounts counts = CountShares(set);
    if (counts.unstated > 0) {
        const std::int32_t share = (100 - counts.sum) / counts.unstated;
        for (AirlineEntry& entry : set.Airlines) {
            if (entry.Percent != kNoStatedShare) {
                entry.PlannedPercent = entry.Percent;
            } else if (!entry.Aircraft.empty()) {
                entry.PlannedPercent = share;
            }
        }
    } else if (counts.stated > 0) {
        const std::int32_t share = (100 - counts.sum) / counts.stated;
        for (AirlineEntry& entry : set.Airlines) {
            if (entry.Percent >= 1) entry.PlannedPercent = entry.Percent + share;
        }
    }
}

}  // namespace orlo
