#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "core/FlightList.h"

namespace orlo {

// The times of one flight as numbers: what check, correction and acceptance measure on. All are whole seconds.
// A time that can't be read gives no measure, and nothing else suffers from it. Legs are counted from 0.
class FlightTimes {
  public:
    explicit FlightTimes(const FlightView& flight);
    explicit FlightTimes(const Flight& flight);

    bool Weekly() const { return weekly_; }  // the period is "WEEK", case aside
    std::int32_t LegCount() const { return static_cast<std::int32_t>(legs_.size()); }

    // On the ground between the arrival of leg `leg` - 1 and the departure of leg `leg`, which is 1 or more.
    // A daily flight departs a day later where it would depart before it has arrived, so that it is never
    // negative; in a weekly flight it may be.
    std::optional<std::int64_t> TurnAround(std::int32_t leg) const;

    // From departure to arrival of the leg, never negative.
    std::optional<std::int64_t> FlightTime(std::int32_t leg) const;

    // Of a daily flight: from the arrival of the last leg to the first departure of the next round, which
    // starts `hours` later.
    std::optional<std::int64_t> ClosingTurnAround(std::int64_t hours) const;

  private:
    struct LegTimes {
        std::optional<std::int32_t> departDay;  // 0 to 6, weekly flights only
        std::optional<std::int32_t> arriveDay;
        std::optional<std::int32_t> depart;  // since midnight
        std::optional<std::int32_t> arrive;
    };
    bool weekly_ = false;
    std::vector<LegTimes> legs_;
};

enum class TurnAroundTest { Passes, TooShort, TooLong };

// `minimum` in minutes and `maximum` in hours are Session::TATime and MaxTATime. Exactly the minimum or the
// maximum passes; a negative time passes too.
TurnAroundTest TestTurnAround(std::int64_t seconds, std::int32_t minimum, std::int32_t maximum);

// The number in front of the last two characters of a period such as "24Hr"; 0 when there is none.
std::int32_t PeriodHours(std::string_view period);

}  // namespace orlo
