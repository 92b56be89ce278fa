#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/AirlineRecords.h"
#include "shuffler/RouteLimits.h"

namespace orlo {

// What all aircraft of all sets can do, laid out for the innermost test of the shuffle. Most aircraft have
// the limits of a class or a class entry, so many share the same limits, here a profile. Each profile is
// tested once a flight, and a set without a fitting one is passed at once.
class CandidateTable {
  public:
    // `sets` and the records they point to must outlive this, and their entries and aircraft must not move.
    // With `anyLevel` the aircraft's levels are not tested.
    CandidateTable(const std::vector<AirlineSet*>& sets, const std::vector<FSAircraft>& fsAircrafts,
                   bool anyLevel);

    // Tests all profiles for a flight; the calls below then answer for that flight.
    void TestProfiles(FlightLimits limits, RouteNeeds needs);

    // The rows of the set's aircraft that fit, in order. They hold until the next call.
    std::span<std::int32_t> FindFitting(std::int32_t set);

    // Moves the rows whose airline has not passed its planned share of the set's flights to the front, in
    // order, and gives them; where every airline has, gives all rows as they are.
    std::span<std::int32_t> PreferUnderShare(std::int32_t setFlights, std::span<std::int32_t> rows) const;

    // Counts a flight for the row's aircraft and its entry, and gives the aircraft.
    const AirlineAircraft& Take(std::int32_t row);

  private:
    struct Choice {
        AirlineEntry* entry = nullptr;
        AirlineAircraft* aircraft = nullptr;
    };
    // What IsOver needs of an airline, packed apart from the entries so that it stays in the processor's
    // cache.
    struct Share {
        std::int32_t planned = 0;
        std::int32_t flights = 0;
    };
    static bool IsOver(const Share& share, std::int32_t setFlights);

    // Minimal and maximal level, minimal and maximal range, runway, parking, bits of surfaces.
    static constexpr std::size_t kLimits = 7;
    using Profile = std::array<std::int32_t, kLimits>;
    static Profile ProfileOf(const FSAircraft& aircraft, bool anyLevel);
    std::vector<std::int32_t> FindProfiles(const std::vector<FSAircraft>& fsAircrafts, bool anyLevel);
    void AddSet(AirlineSet& set, const std::vector<std::int32_t>& profileByAircraft);
    bool AnyProfileFits(std::size_t set) const;

    std::array<std::vector<std::int32_t>, kLimits> profiles_;  // an array for each limit
    std::vector<std::int32_t> profileFits_;                    // 1 or 0, for the flight under test

    std::vector<std::int32_t> firstRow_;  // by set, with the end of the last one behind it
    std::vector<Choice> choices_;         // by row: the aircraft of a set follow each other, by entry
    std::vector<std::int32_t> rowProfile_;
    std::vector<std::int32_t> rowShare_;         // place in shares_
    std::vector<Share> shares_;                  // one an entry
    std::vector<std::int32_t> firstSetProfile_;  // by set, as above
    std::vector<std::int32_t> setProfiles_;      // the different profiles of each set
    std::vector<std::int32_t> fitting_;
};

}  // namespace orlo
