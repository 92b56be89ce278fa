#include "core/FlightTimes.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "core/ClockTime.h"
#include "core/Session.h"
#include "core/Text.h"

namespace orlo {
namespace {

using Seconds = std::optional<std::int64_t>;

// Times in turn: departure and arrival of each leg.
Flight MakeFlight(std::string period, const std::vector<std::string>& times) {
    Flight flight;
    flight.Period = std::move(period);
    for (std::size_t i = 0; i + 1 < times.size(); i += 2) {
        flight.Legs.push_back({times[i], times[i + 1], false, "350", "F", "1", "EDDF"});
    }
    return flight;
}

TEST(FlightTimes, DailyTimesWrapAtMidnightAndWeekTimesRunThroughTheTurnOfTheWeek) {
    const struct {
        std::string period;
        std::vector<std::string> times;
        Seconds turnAround;  // in front of the second leg
        Seconds firstFlightTime, secondFlightTime;
    } cases[] = {
        {"24Hr", {"10:00:00", "11:30:00", "12:00:00", "12:45:30"}, 1800, 5400, 2730},
        {"24Hr", {"23:00:00", "00:30:00", "00:15:00", "00:15:00"}, 85500, 5400, 0},
        {"24Hr", {"9:00", "10:00", "10:00", "11:00"}, 0, 3600, 3600},
        {"WEEK", {"6/22:00:00", "0/01:00:00", "0/02:00:00", "0/03:00:00"}, 3600, 10800, 3600},
        {"week", {"1/10:00:00", "1/11:00:00", "1/10:30:00", "1/12:00:00"}, -1800, 3600, 5400},
        {"WEEK", {"5/10:00:00", "5/12:00:00", "1/12:00:00", "1/13:00:00"}, 3 * 86400, 7200, 3600},
        // Same day, arrival before departure: the time between them.
        {"WEEK", {"2/10:00:00", "2/08:00:00", "2/09:00:00", "2/10:00:00"}, 3600, 7200, 3600},
        // What can't be read, and nothing else, is not measured.
        {"24Hr", {"10:00:00", "later", "12:00:00", "13:00:00"}, {}, {}, 3600},
        {"24Hr", {"10:00:00", "24:00:00", "12:00:00", ""}, {}, {}, {}},
        {"24Hr", {"1/10:00:00", "11:00:00", "12:00:00", "1/13:00:00"}, 3600, {}, {}},
        {"WEEK", {"10:00:00", "1/11:00:00", "1/12:00:00", "1/13:00:00"}, {}, {}, 3600},
        {"WEEK", {"1/10:00:00", "1/11:00:00", "7/12:00:00", "1/13:00:00"}, {}, 3600, {}},
        {"WEEK", {"1/1x:00:00", "1/11:00:00", "1/12:00:00", "1/13:00:00"}, 3600, {}, 3600},
    };
    for (const auto& c : cases) {
        const FlightTimes times(MakeFlight(c.period, c.times));
        const std::string shown = c.period + " " + testing::PrintToString(c.times);
        EXPECT_EQ(times.Weekly(), EqualNoCase(c.period, "week")) << shown;
        EXPECT_EQ(times.TurnAround(1), c.turnAround) << shown;
        EXPECT_EQ(times.FlightTime(0), c.firstFlightTime) << shown;
        EXPECT_EQ(times.FlightTime(1), c.secondFlightTime) << shown;
    }
}

TEST(FlightTimes, TheClosingTurnAroundLeadsToTheNextRound) {
    const struct {
        std::vector<std::string> times;
        std::int64_t hours;
        Seconds expected;
    } cases[] = {
        {{"08:00:00", "09:00:00", "10:00:00", "11:00:00"}, 24, 21 * 3600},
        {{"20:00:00", "21:00:00", "01:00:00", "02:00:00"}, 24, 18 * 3600},
        {{"08:00:00", "09:00:00", "10:00:00", "11:00:00"}, 4, 1 * 3600},
        {{"01:00:00", "09:00:00", "10:00:00", "23:00:00"}, 1, 21 * 3600},
        {{"08:00:00", "09:00:00", "10:00:00", ""}, 24, {}},
        {{}, 24, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FlightTimes(MakeFlight("24Hr", c.times)).ClosingTurnAround(c.hours), c.expected)
            << testing::PrintToString(c.times);
    }
    // A period without a number has no hours.
    EXPECT_EQ(PeriodHours("24Hr"), 24);
    EXPECT_EQ(PeriodHours("1Hr"), 1);
    for (const char* period : {"", "H", "Hr", "WEEK", "xxHr", "24"}) EXPECT_EQ(PeriodHours(period), 0);
}

// The placing of week times leg by leg with its walks, quadratic in the number of legs.
std::int64_t PlainTurnAround(const std::vector<WeekTime>& depart, const std::vector<WeekTime>& arrive,
                             std::size_t leg) {
    const int first = depart[0].Day;
    const int arrives = arrive[leg - 1].Day;
    const int departs = depart[leg].Day;
    bool arrivesNext = departs < arrives && arrives < first;
    if (!arrivesNext && departs > arrives && arrives <= first) {
        for (std::size_t m = leg; m-- > 0;)
            arrivesNext = arrivesNext || arrive[m].Day != first || depart[m].Day > first;
    }
    bool departsNext = departs < arrives && departs < first;
    if (!departsNext && departs != arrives && departs <= first) {
        departsNext = true;
        for (std::size_t m = leg + 1; m < depart.size(); ++m)
            departsNext = departsNext && arrive[m].Day <= first && depart[m].Day <= first;
    }
    const auto at = [](const WeekTime& time, bool next) {
        return (std::int64_t{time.Day} + (next ? 7 : 0)) * kSecondsPerDay + time.Seconds;
    };
    return at(depart[leg], departsNext) - at(arrive[leg - 1], arrivesNext);
}

// Also while legs are moved one after the other, as the correction does.
TEST(FlightTimes, WeekTimesArePlacedByTheLegsAround) {
    std::mt19937 engine(20020618);
    const auto pick = [&engine](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(engine);
    };
    int otherWeek = 0;
    for (int round = 0; round < 20000; ++round) {
        const auto legs = static_cast<std::size_t>(pick(1, 7));
        const int lastDay = pick(1, 6);
        std::vector<WeekTime> depart, arrive;
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < legs; ++i) {
            depart.push_back({pick(0, lastDay), pick(0, kSecondsPerDay - 1)});
            arrive.push_back({pick(0, 3) == 0 ? pick(0, 6) : depart[i].Day, pick(0, kSecondsPerDay - 1)});
            texts.push_back(FormatWeekTime(depart[i]));
            texts.push_back(FormatWeekTime(arrive[i]));
        }
        FlightTimes times(MakeFlight("WEEK", texts));
        for (std::size_t leg = 1; leg < legs; ++leg) {
            const auto number = static_cast<std::int32_t>(leg);
            const std::int64_t expected = PlainTurnAround(depart, arrive, leg);
            ASSERT_EQ(times.TurnAround(number), expected) << testing::PrintToString(texts) << leg;
            otherWeek += std::abs(expected) > 7 * kSecondsPerDay / 2;
            if (pick(0, 1) == 0) continue;
            const std::int64_t seconds = pick(-700000, 700000);
            const auto moved = [seconds](const WeekTime& time) {
                std::int64_t at = std::int64_t{time.Day} * kSecondsPerDay + time.Seconds + seconds;
                at = (at % kSecondsPerWeek + kSecondsPerWeek) % kSecondsPerWeek;
                return WeekTime{static_cast<std::int32_t>(at / kSecondsPerDay),
                                static_cast<std::int32_t>(at % kSecondsPerDay)};
            };
            depart[leg] = moved(depart[leg]);
            arrive[leg] = moved(arrive[leg]);
            ASSERT_TRUE(times.Move(number, seconds));
            ASSERT_EQ(times.DepartText(number), FormatWeekTime(depart[leg]));
            ASSERT_EQ(times.ArriveText(number), FormatWeekTime(arrive[leg]));
        }
    }
    EXPECT_GT(otherWeek, 1000);
}

TEST(FlightTimes, ALegMovesWholeOrNotAtAll) {
    FlightTimes times(
        MakeFlight("24Hr", {"10:00:00", "11:00:00", "23:00:00", "23:30:00", "12:00:00", "?", "?", "13:00"}));
    EXPECT_TRUE(times.Move(1, 3600));
    EXPECT_EQ(times.DepartText(1) + " " + times.ArriveText(1), "00:00:00 00:30:00");
    EXPECT_EQ(times.FlightTime(1), 1800);
    EXPECT_FALSE(times.Move(2, 60));
    EXPECT_FALSE(times.Move(3, 60));
    EXPECT_FALSE(times.Moved(0) || times.Moved(2) || times.Moved(3));
    EXPECT_EQ(times.TurnAround(2), 11 * 3600 + 1800);
}

}  // namespace
}  // namespace orlo
