#include "shuffler/CandidateTable.h"

#include <algorithm>
#include <limits>

#include "core/AirportRecord.h"
#include "core/Text.h"

namespace orlo {
namespace {

// The bit of a surface; all that is no surface share bit 0.
std::int32_t SurfaceBit(std::int32_t surface) {
    return surface >= kSurfaceHard && surface <= kSurfaceSnow ? 1 << surface : 1;
}

std::vector<std::int32_t> SurfacesByAircraft(const std::vector<FSAircraft>& fsAircrafts) {
    std::vector<std::int32_t> surfaces;
    surfaces.reserve(fsAircrafts.size());
    for (const FSAircraft& aircraft : fsAircrafts) {
        std::int32_t bits = 0;
        for (std::int32_t surface = kSurfaceNone; surface <= kSurfaceSnow; ++surface) {
            if (ContainsNoCase(aircraft.RunwayTypes, SurfaceText(surface))) bits |= SurfaceBit(surface);
        }
        surfaces.push_back(bits);
    }
    return surfaces;
}

// Whether an airline has more of the set's flights, in whole percent, than planned. A planned percent can be
// negative, as read.
bool IsOverShare(const AirlineEntry& entry, std::int32_t setFlights) {
    if (setFlights == 0) return entry.PlannedPercent < 0;
    const std::int64_t achieved = static_cast<std::int64_t>(entry.Flights) * 100;
    return achieved >= (static_cast<std::int64_t>(entry.PlannedPercent) + 1) * setFlights;
}

}  // namespace

CandidateTable::CandidateTable(const std::vector<AirlineSet*>& sets,
                               const std::vector<FSAircraft>& fsAircrafts, bool anyLevel) {
    const std::vector<std::int32_t> surfaces = SurfacesByAircraft(fsAircrafts);
    std::size_t mostRows = 0;
    for (AirlineSet* set : sets) {
        firstRow_.push_back(static_cast<std::int32_t>(choices_.size()));
        for (AirlineEntry& entry : set->Airlines) {
            for (AirlineAircraft& aircraft : entry.Aircraft) {
                const auto index = static_cast<std::size_t>(aircraft.AircraftIndex);
                AddAircraft(fsAircrafts[index], surfaces[index], anyLevel);
                choices_.push_back({&entry, &aircraft});
            }
        }
        mostRows = std::max(mostRows, choices_.size() - static_cast<std::size_t>(firstRow_.back()));
    }
    firstRow_.push_back(static_cast<std::int32_t>(choices_.size()));
    fits_.resize(mostRows);
    fitting_.resize(mostRows + 1);  // the last write may stand behind the last find
}

void CandidateTable::AddAircraft(const FSAircraft& aircraft, std::int32_t surfaces, bool anyLevel) {
    minLevel_.push_back(anyLevel ? std::numeric_limits<std::int32_t>::min() : aircraft.MinFL);
    maxLevel_.push_back(anyLevel ? std::numeric_limits<std::int32_t>::max() : aircraft.MaxFL);
    minRange_.push_back(aircraft.MinRange);
    maxRange_.push_back(aircraft.MaxRange);
    runway_.push_back(aircraft.RunwayLength);
    parking_.push_back(aircraft.MinParkingRadius);
    surfaces_.push_back(surfaces);
}

std::span<std::int32_t> CandidateTable::FindFitting(std::int32_t set, const FlightLimits& limits,
                                                    const RouteNeeds& needs) {
    const std::int32_t first = firstRow_[static_cast<std::size_t>(set)];
    const std::int32_t count = firstRow_[static_cast<std::size_t>(set) + 1] - first;
    const std::int32_t surface = SurfaceBit(needs.surface);

    // Plain loops without branches, which the compiler turns into vector code.
    const std::int32_t* minLevel = minLevel_.data() + first;
    const std::int32_t* maxLevel = maxLevel_.data() + first;
    const std::int32_t* minRange = minRange_.data() + first;
    const std::int32_t* maxRange = maxRange_.data() + first;
    const std::int32_t* runway = runway_.data() + first;
    const std::int32_t* parking = parking_.data() + first;
    const std::int32_t* surfaces = surfaces_.data() + first;
    std::int32_t* fits = fits_.data();
    for (std::int32_t i = 0; i < count; ++i) {
        fits[i] = static_cast<std::int32_t>(limits.minLevel >= minLevel[i]) &
                  static_cast<std::int32_t>(limits.maxLevel <= maxLevel[i]) &
                  static_cast<std::int32_t>(limits.minDistance >= minRange[i]) &
                  static_cast<std::int32_t>(limits.maxDistance <= maxRange[i]) &
                  static_cast<std::int32_t>(runway[i] <= needs.minRunway) &
                  static_cast<std::int32_t>(parking[i] <= needs.minParking) &
                  static_cast<std::int32_t>((surfaces[i] & surface) != 0);
    }

    std::size_t found = 0;
    for (std::int32_t i = 0; i < count; ++i) {
        fitting_[found] = first + i;
        found += static_cast<std::size_t>(fits[i]);
    }
    return {fitting_.data(), found};
}

std::span<std::int32_t> CandidateTable::PreferUnderShare(std::int32_t setFlights,
                                                         std::span<std::int32_t> rows) const {
    std::size_t under = 0;
    for (const std::int32_t row : rows) {
        if (!IsOverShare(*At(row).entry, setFlights)) rows[under++] = row;
    }
    return under > 0 ? rows.first(under) : rows;
}

}  // namespace orlo
