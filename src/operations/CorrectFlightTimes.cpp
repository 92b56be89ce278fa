#include "operations/CorrectFlightTimes.h"

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "core/ClockTime.h"
#include "mainwindow/PlanChange.h"

namespace orlo {
namespace {

// Distance of a corrected turn-around from its limit, so that the next correction leaves it.
constexpr std::int64_t kSpareSeconds = 2 * kSecondsPerMinute;
// A negative turn-around becomes this where no minimum is set.
constexpr std::int64_t kUsualTurnAround = 47 * kSecondsPerMinute;

struct PeriodLimit {
    std::string_view period;
    std::int64_t minutes;
    bool leavesMinimum;  // the round also leaves room for the minimum turn-around
};
constexpr PeriodLimit kPeriods[] = {
    {"1Hr", 60, true},  {"2Hr", 120, true},   {"4Hr", 240, true},   {"6Hr", 360, true},
    {"8Hr", 480, true}, {"12Hr", 720, false}, {"24Hr", 1440, true},
};
constexpr std::string_view kLongestRound = "24Hr";

// The shortest period for a round of `total` seconds; nothing when it fits into none.
std::optional<std::string_view> ShortestPeriod(std::int64_t total, std::int64_t minimumMinutes) {
    for (const PeriodLimit& limit : kPeriods) {
        const std::int64_t minutes = limit.minutes - (limit.leavesMinimum ? minimumMinutes : 0);
        if (total < minutes * kSecondsPerMinute) return limit.period;
    }
    return std::nullopt;
}

// What a turn-around of `seconds` becomes; nothing where it may stay.
std::optional<std::int64_t> CorrectedTurnAround(std::int64_t seconds, std::int32_t minimum,
                                                std::int32_t maximum) {
    const bool hasMinimum = minimum != kNoTurnAroundLimit;
    const std::int64_t least = std::int64_t{minimum} * kSecondsPerMinute;
    if (seconds < 0 && !hasMinimum) return kUsualTurnAround;
    if (hasMinimum && seconds < least + kSecondsPerMinute) return least + kSpareSeconds;
    const std::int64_t most = std::int64_t{maximum} * kSecondsPerHour;
    if (maximum != kNoTurnAroundLimit && seconds > most - kSecondsPerMinute) return most - kSpareSeconds;
    return std::nullopt;
}

// Corrects the turn-arounds in order, each measured against what was moved before. Gives the round's seconds
// as far as they can be read.
std::int64_t CorrectTurnArounds(FlightTimes& times, std::int32_t minimum, std::int32_t maximum) {
    std::int64_t total = 0;
    for (std::int32_t leg = 0; leg < times.LegCount(); ++leg) {
        if (auto turnAround = leg > 0 ? times.TurnAround(leg) : std::nullopt) {
            const auto wanted = CorrectedTurnAround(*turnAround, minimum, maximum);
            if (wanted && times.Move(leg, *wanted - *turnAround)) turnAround = wanted;
            total += std::abs(*turnAround);
        }
        total += times.FlightTime(leg).value_or(0);
    }
    return total;
}

void TightenTurnArounds(FlightTimes& times, std::int64_t minimumMinutes) {
    const std::int64_t wanted = minimumMinutes * kSecondsPerMinute + kSpareSeconds;
    for (std::int32_t leg = 1; leg < times.LegCount(); ++leg) {
        if (const auto turnAround = times.TurnAround(leg)) times.Move(leg, wanted - *turnAround);
    }
}

bool AnyMoved(const FlightTimes& times) {
    for (std::int32_t leg = 0; leg < times.LegCount(); ++leg) {
        if (times.Moved(leg)) return true;
    }
    return false;
}

// Holds the texts of moved legs while they are lent to a changed flight.
class MovedTimes {
  public:
    void Lend(const FlightTimes& times, LentFlight& flight) {
        texts_.resize(2 * flight.Legs.size());
        for (std::size_t i = 0; i < flight.Legs.size(); ++i) {
            const auto leg = static_cast<std::int32_t>(i);
            if (!times.Moved(leg)) continue;
            flight.Legs[i].DepartTime = texts_[2 * i] = times.DepartText(leg);
            flight.Legs[i].ETA = texts_[2 * i + 1] = times.ArriveText(leg);
        }
    }

  private:
    std::vector<std::string> texts_;
};

}  // namespace

std::string_view CorrectTimes(FlightTimes& times, std::int32_t minimum, std::int32_t maximum) {
    const std::int64_t total = CorrectTurnArounds(times, minimum, maximum);
    if (times.Weekly()) return {};
    const std::int64_t minimumMinutes = minimum == kNoTurnAroundLimit ? 0 : minimum;
    if (const auto period = ShortestPeriod(total, minimumMinutes)) return *period;
    TightenTurnArounds(times, minimumMinutes);
    const std::int64_t tightened = CorrectTurnArounds(times, minimum, maximum);
    return ShortestPeriod(tightened, minimumMinutes).value_or(kLongestRound);
}

void CorrectFlightTimes(Plan& plan, const Switches& switches) {
    MovedTimes moved;
    plan.Flights.Rewrite([&](std::int32_t, const FlightView& flight, LentFlight& changed) {
        FlightTimes times(flight);
        const std::string_view period = CorrectTimes(times, switches.TATime, switches.MaxTATime);
        const bool periodStays = times.Weekly() || period == flight.Period;
        if (periodStays && !AnyMoved(times)) return false;
        changed = flight;
        if (!periodStays) changed.Period = period;
        moved.Lend(times, changed);
        return true;
    });
}

void OnCorrectFlightTimes(Context& context) {
    PlanChange change;
    change.work = [&](BusyForm&) -> std::string {
        CorrectFlightTimes(context.session.plan, context.session.switches);
        return "Successfully checked Flight Timings for all flights.";
    };
    ChangePlan(context, context.forms.frmMain, change);
}

}  // namespace orlo
