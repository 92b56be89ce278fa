#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/AirlineRecords.h"
#include "shuffler/ShuffleLog.h"

namespace orlo {

// What all aircraft of all sets can do, laid out for the innermost test of the shuffle: one array for each
// limit, the aircraft of a set in a row, in the order of its entries.
class CandidateTable {
  public:
    // `sets` and the records they point to must outlive this, and their entries and aircraft must not move.
    // With `anyLevel` the aircraft's levels are not tested.
    CandidateTable(const std::vector<AirlineSet*>& sets, const std::vector<FSAircraft>& fsAircrafts,
                   bool anyLevel);

    struct Choice {
        AirlineEntry* entry = nullptr;
        AirlineAircraft* aircraft = nullptr;
    };

    // The rows of the set's aircraft that fit, in order. They hold until the next call.
    std::span<std::int32_t> FindFitting(std::int32_t set, const FlightLimits& limits,
                                        const RouteNeeds& needs);

    // Moves the rows whose airline has not passed its planned share of the set's flights to the front, in
    // order, and gives these; where there are none, gives all rows as they are.
    std::span<std::int32_t> PreferUnderShare(std::int32_t setFlights, std::span<std::int32_t> rows) const;

    const Choice& At(std::int32_t row) const { return choices_[static_cast<std::size_t>(row)]; }

  private:
    void AddAircraft(const FSAircraft& aircraft, std::int32_t surfaces, bool anyLevel);

    std::vector<std::int32_t> firstRow_;  // by set, with the end of the last one behind it
    std::vector<std::int32_t> minLevel_;
    std::vector<std::int32_t> maxLevel_;
    std::vector<std::int32_t> minRange_;
    std::vector<std::int32_t> maxRange_;
    std::vector<std::int32_t> runway_;
    std::vector<std::int32_t> parking_;
    std::vector<std::int32_t> surfaces_;  // a bit for each surface that the aircraft's runway types hold
    std::vector<Choice> choices_;
    std::vector<std::int32_t> fits_;  // of the set under test, 1 or 0
    std::vector<std::int32_t> fitting_;
};

}  // namespace orlo
