#include "shuffler/CandidateTable.h"

#include <algorithm>
#include <limits>
#include <map>

#include "core/AirportRecord.h"
#include "core/Text.h"

namespace orlo {
namespace {

// The bit of a surface; bit 0 for any other value.
std::int32_t SurfaceBit(std::int32_t surface) {
    return surface >= kSurfaceHard && surface <= kSurfaceSnow ? 1 << surface : 1;
}

std::int32_t SurfaceBitsOf(const FSAircraft& aircraft) {
    std::int32_t bits = 0;
    for (std::int32_t surface = kSurfaceNone; surface <= kSurfaceSnow; ++surface) {
        if (ContainsNoCase(aircraft.RunwayTypes, SurfaceText(surface))) bits |= SurfaceBit(surface);
    }
    return bits;
}

}  // namespace

CandidateTable::CandidateTable(const std::vector<AirlineSet*>& sets,
                               const std::vector<FSAircraft>& fsAircrafts, bool anyLevel) {
    const std::vector<std::int32_t> profileByAircraft = FindProfiles(fsAircrafts, anyLevel);
    profileFits_.resize(profiles_.front().size());
    for (AirlineSet* set : sets) AddSet(*set, profileByAircraft);
    firstRow_.push_back(static_cast<std::int32_t>(choices_.size()));
    firstSetProfile_.push_back(static_cast<std::int32_t>(setProfiles_.size()));

    std::int32_t mostRows = 0;
    for (std::size_t i = 1; i < firstRow_.size(); ++i) {
        mostRows = std::max(mostRows, firstRow_[i] - firstRow_[i - 1]);
    }
    fitting_.resize(static_cast<std::size_t>(mostRows) +
                    1);  // a row that doesn't fit is written, not counted
}

CandidateTable::Profile CandidateTable::ProfileOf(const FSAircraft& aircraft, bool anyLevel) {
    constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
    return {anyLevel ? kLowest : aircraft.MinFL,
            anyLevel ? kHighest : aircraft.MaxFL,
            aircraft.MinRange,
            aircraft.MaxRange,
            aircraft.RunwayLength,
            aircraft.MinParkingRadius,
            SurfaceBitsOf(aircraft)};
}

// Fills profiles_ and gives, for each aircraft, the place of its profile.
std::vector<std::int32_t> CandidateTable::FindProfiles(const std::vector<FSAircraft>& fsAircrafts,
                                                       bool anyLevel) {
    std::map<Profile, std::int32_t> places;
    std::vector<std::int32_t> profileByAircraft;
    profileByAircraft.reserve(fsAircrafts.size());
    for (const FSAircraft& aircraft : fsAircrafts) {
        const auto next = static_cast<std::int32_t>(places.size());
        const auto [found, isNew] = places.try_emplace(ProfileOf(aircraft, anyLevel), next);
        for (std::size_t limit = 0; isNew && limit < kLimits; ++limit) {
            profiles_[limit].push_back(found->first[limit]);
        }
        profileByAircraft.push_back(found->second);
    }
    return profileByAircraft;
}

void CandidateTable::AddSet(AirlineSet& set, const std::vector<std::int32_t>& profileByAircraft) {
    const std::size_t firstRow = choices_.size();
    firstRow_.push_back(static_cast<std::int32_t>(firstRow));
    for (AirlineEntry& entry : set.Airlines) {
        const auto share = static_cast<std::int32_t>(shares_.size());
        shares_.push_back({entry.PlannedPercent, entry.Flights});
        for (AirlineAircraft& aircraft : entry.Aircraft) {
            rowShare_.push_back(share);
            choices_.push_back({&entry, &aircraft});
            rowProfile_.push_back(profileByAircraft[static_cast<std::size_t>(aircraft.AircraftIndex)]);
        }
    }
    std::vector<std::int32_t> different(rowProfile_.begin() + static_cast<std::ptrdiff_t>(firstRow),
                                        rowProfile_.end());
    std::sort(different.begin(), different.end());
    different.erase(std::unique(different.begin(), different.end()), different.end());
    firstSetProfile_.push_back(static_cast<std::int32_t>(setProfiles_.size()));
    setProfiles_.insert(setProfiles_.end(), different.begin(), different.end());
}

void CandidateTable::TestProfiles(FlightLimits limits, RouteNeeds needs) {
    const std::int32_t surface = SurfaceBit(needs.surface);
    const std::int32_t* minLevel = profiles_[0].data();
    const std::int32_t* maxLevel = profiles_[1].data();
    const std::int32_t* minRange = profiles_[2].data();
    const std::int32_t* maxRange = profiles_[3].data();
    const std::int32_t* runway = profiles_[4].data();
    const std::int32_t* parking = profiles_[5].data();
    const std::int32_t* surfaces = profiles_[6].data();
    // A plain loop over local values without branches, which the compiler turns into vector code.
    std::int32_t* fits = profileFits_.data();
    const std::size_t count = profileFits_.size();
    for (std::size_t i = 0; i < count; ++i) {
        fits[i] = static_cast<std::int32_t>(limits.minLevel >= minLevel[i]) &
                  static_cast<std::int32_t>(limits.maxLevel <= maxLevel[i]) &
                  static_cast<std::int32_t>(limits.minDistance >= minRange[i]) &
                  static_cast<std::int32_t>(limits.maxDistance <= maxRange[i]) &
                  static_cast<std::int32_t>(runway[i] <= needs.minRunway) &
                  static_cast<std::int32_t>(parking[i] <= needs.minParking) &
                  static_cast<std::int32_t>((surfaces[i] & surface) != 0);
    }
}

bool CandidateTable::AnyProfileFits(std::size_t set) const {
    for (std::int32_t i = firstSetProfile_[set]; i < firstSetProfile_[set + 1]; ++i) {
        const std::int32_t profile = setProfiles_[static_cast<std::size_t>(i)];
        if (profileFits_[static_cast<std::size_t>(profile)] != 0) return true;
    }
    return false;
}

std::span<std::int32_t> CandidateTable::FindFitting(std::int32_t set) {
    const auto place = static_cast<std::size_t>(set);
    if (!AnyProfileFits(place)) return {};
    const std::int32_t end = firstRow_[place + 1];
    std::size_t found = 0;
    // Without a branch: a row that doesn't fit is overwritten by the next.
    for (std::int32_t row = firstRow_[place]; row < end; ++row) {
        const std::int32_t profile = rowProfile_[static_cast<std::size_t>(row)];
        fitting_[found] = row;
        found += static_cast<std::size_t>(profileFits_[static_cast<std::size_t>(profile)]);
    }
    return {fitting_.data(), found};
}

// Whether an airline has more of the set's flights, in whole percent, than planned. A planned percent can be
// negative, as read.
bool CandidateTable::IsOver(const Share& share, std::int32_t setFlights) {
    if (setFlights == 0) return share.planned < 0;
    const std::int64_t achieved = static_cast<std::int64_t>(share.flights) * 100;
    return achieved >= (static_cast<std::int64_t>(share.planned) + 1) * setFlights;
}

const AirlineAircraft& CandidateTable::Take(std::int32_t row) {
    const auto place = static_cast<std::size_t>(row);
    const Choice& choice = choices_[place];
    ++shares_[static_cast<std::size_t>(rowShare_[place])].flights;
    ++choice.entry->Flights;
    ++choice.aircraft->UseCount;
    return *choice.aircraft;
}

std::span<std::int32_t> CandidateTable::PreferUnderShare(std::int32_t setFlights,
                                                         std::span<std::int32_t> rows) const {
    std::size_t under = 0;
    for (const std::int32_t row : rows) {
        const std::int32_t share = rowShare_[static_cast<std::size_t>(row)];
        if (!IsOver(shares_[static_cast<std::size_t>(share)], setFlights)) rows[under++] = row;
    }
    return under > 0 ? rows.first(under) : rows;
}

}  // namespace orlo
