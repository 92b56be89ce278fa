#include "operations/CheckFlightTimes.h"

#include <cstdlib>
#include <string_view>

#include "core/ClockTime.h"
#include "core/FlightTimes.h"

namespace orlo {
namespace {

struct Faults {
    bool total = false;
    bool order = false;
    bool tooShort = false;
    bool tooLong = false;
};

// Joins the texts of the faults, in the order below.
FlightTimesCheck Report(const Faults& faults) {
    FlightTimesCheck check;
    const auto add = [&check](bool fault, std::string_view text) {
        if (!fault) return;
        if (!check.Text.empty()) check.Text += " | ";
        check.Text += text;
        check.Right = false;
    };
    add(faults.total, "Total flight time");
    add(faults.order, "Depart earlier than arrival");
    add(faults.tooShort, "min. Turn-Around");
    add(faults.tooLong, "max. Turn-Around");
    return check;
}

}  // namespace

FlightTimesCheck CheckFlightTimes(const FlightView& flight, std::int32_t minimum, std::int32_t maximum) {
    const FlightTimes times(flight);
    Faults faults;
    const auto test = [&](std::int64_t seconds) {
        const TurnAroundTest result = TestTurnAround(seconds, minimum, maximum);
        faults.tooShort = faults.tooShort || result == TurnAroundTest::TooShort;
        faults.tooLong = faults.tooLong || result == TurnAroundTest::TooLong;
    };
    std::int64_t total = 0;
    for (std::int32_t leg = 0; leg < times.LegCount(); ++leg) {
        if (leg > 0) {
            if (const auto turnAround = times.TurnAround(leg)) {
                total += std::abs(*turnAround);
                faults.order = faults.order || *turnAround < 0;
                test(*turnAround);
            }
        }
        total += times.FlightTime(leg).value_or(0);
    }
    if (times.Weekly()) {
        faults.total = total >= kSecondsPerWeek;
        test(kSecondsPerWeek - total);
    } else {
        const std::int64_t hours = PeriodHours(flight.Period);
        faults.total = total >= hours * kSecondsPerHour;
        if (const auto closing = times.ClosingTurnAround(hours)) test(*closing);
    }
    return Report(faults);
}

}  // namespace orlo
