#include "operations/CorrectFlightTimes.h"

#include <cstdlib>
#include <optional>

#include "core/ClockTime.h"
#include "operations/PlanCorrection.h"

namespace orlo {
namespace {

// What a corrected turn-around keeps from its limit, so that it passes the next correction too.
constexpr std::int64_t kSpareSeconds = 2 * kSecondsPerMinute;
// A negative turn-around gets so much where no minimum is set.
constexpr std::int64_t kUsualTurnAround = 47 * kSecondsPerMinute;

constexpr std::size_t kLongestTime = 10;  // "d/HH:MM:SS"
constexpr std::size_t kLongestPeriod = 4;

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

// Of a round of so many seconds; nothing when it fits into none.
std::optional<std::string_view> ShortestPeriod(std::int64_t total, std::int64_t minimumMinutes) {
    for (const PeriodLimit& limit : kPeriods) {
        const std::int64_t minutes = limit.minutes - (limit.leavesMinimum ? minimumMinutes : 0);
        if (total < minutes * kSecondsPerMinute) return limit.period;
    }
    return std::nullopt;
}

// The turn-around that takes the place of one of so many seconds; nothing where that may stay.
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

// The flight at `index` of the plan with its corrected times.
void StoreTimes(const FlightList& plan, std::int32_t index, const FlightTimes& times, FlightView flight,
                FlightList& flights) {
    flights.BeginRow(plan.Row(index).size() + 1 + kLongestPeriod +
                     static_cast<std::size_t>(flight.LegCount) * 2 * kLongestTime);
    flights.AddFlightFields(flight);
    std::int32_t number = 0;
    for (LegView leg : flight) {
        if (!times.Moved(number)) {
            flights.AddLegFields(leg);
        } else {
            const std::string depart = times.DepartText(number);
            const std::string arrive = times.ArriveText(number);
            leg.DepartTime = depart;
            leg.ETA = arrive;
            flights.AddLegFields(leg);
        }
        ++number;
    }
    flights.EndRow(flight.LegCount, flight.Removed);
}

void CorrectTimesOfPlan(Context& context) {
    CorrectFlightTimes(context.session);
}

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

void CorrectFlightTimes(Session& session) {
    const FlightList& plan = session.Flights;
    FlightList flights;
    flights.Reserve(plan.Count());
    for (std::int32_t i = 0; i < plan.Count(); ++i) {
        FlightView flight = plan.At(i);
        FlightTimes times(flight);
        const std::string_view period = CorrectTimes(times, session.TATime, session.MaxTATime);
        const bool periodStays = times.Weekly() || period == flight.Period;
        if (periodStays && !AnyMoved(times)) {
            flights.AppendFrom(plan, i);
            continue;
        }
        if (!periodStays) flight.Period = period;
        StoreTimes(plan, i, times, flight, flights);
    }
    session.Flights = std::move(flights);
}

void OnCorrectFlightTimes(Context& context) {
    RunPlanCorrection(context, CorrectTimesOfPlan, "Successfully checked Flight Timings for all flights.");
}

}  // namespace orlo
