#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/FlightList.h"

namespace orlo {

// The times of one flight as numbers, for the check, the correction and the flight editor. All are whole
// seconds. What needs a time that can't be read is not given; all else is. Legs are counted from 0.
class FlightTimes {
  public:
    explicit FlightTimes(const FlightView& flight);
    explicit FlightTimes(const Flight& flight);

    bool Weekly() const { return weekly_; }  // see IsWeekPeriod
    std::int32_t LegCount() const { return static_cast<std::int32_t>(legs_.size()); }

    // Time on the ground between the arrival of leg `leg` - 1 and the departure of leg `leg`, which is 1 or
    // more. Never negative in a daily flight, which departs a day later where it would depart before it has
    // arrived; a weekly flight's may be negative.
    std::optional<std::int64_t> TurnAround(std::int32_t leg) const;

    // From departure to arrival of the leg, never negative.
    std::optional<std::int64_t> FlightTime(std::int32_t leg) const;

    // Of a daily flight: from the arrival of the last leg to the first departure of the next round, which
    // starts `hours` later.
    std::optional<std::int64_t> ClosingTurnAround(std::int64_t hours) const;

    // Moves departure and arrival of a leg, which is 1 or more, by the same seconds in either direction; a
    // daily flight wraps at midnight, a weekly one at the end of the week. False, with nothing changed, when
    // either time can't be read. Moving all legs in order takes linear time.
    bool Move(std::int32_t leg, std::int64_t seconds);

    // Whether Move has moved the leg, and the texts of its times then.
    bool Moved(std::int32_t leg) const { return LegAt(leg).moved; }
    std::string DepartText(std::int32_t leg) const;
    std::string ArriveText(std::int32_t leg) const;

  private:
    struct Time {
        std::optional<std::int32_t> day;    // 0 to 6, weekly flights only
        std::optional<std::int32_t> clock;  // since midnight
    };
    struct LegTimes {
        Time depart;
        Time arrive;
        bool moved = false;
    };

    static Time ReadTime(std::string_view text, bool weekly);
    const LegTimes& LegAt(std::int32_t leg) const { return legs_[static_cast<std::size_t>(leg)]; }

    std::optional<std::int64_t> SecondsOf(const Time& time) const;
    Time TimeAt(std::int64_t seconds) const;
    std::string TextOf(const Time& time) const;

    void FindTurnOfWeek();
    void SettleFirstOff();
    void SettleLastBeyond();
    bool Off(std::int32_t leg) const;
    bool Beyond(std::int32_t leg) const;
    bool ArrivesNextWeek(std::int32_t nextLeg) const;
    bool DepartsNextWeek(std::int32_t leg) const;

    bool weekly_ = false;
    std::vector<LegTimes> legs_;

    // What the placing of week times asks of the legs in front of a leg, and of those behind it.
    std::int32_t firstOff_ = 0;     // first leg for which Off holds; LegCount() without one
    std::int32_t lastBeyond_ = -1;  // last leg for which Beyond holds; -1 without one
};

enum class TurnAroundTest { Passes, TooShort, TooLong };

// `minimum` in minutes and `maximum` in hours are Switches::TATime and MaxTATime. Exactly the minimum or the
// maximum passes; a negative time passes too.
TurnAroundTest TestTurnAround(std::int64_t seconds, std::int32_t minimum, std::int32_t maximum);

// Whether a flight of that period repeats every week: "WEEK", case aside.
bool IsWeekPeriod(std::string_view period);

// The number in front of the last two characters of a period such as "24Hr"; 0 when there is none.
std::int32_t PeriodHours(std::string_view period);

}  // namespace orlo
