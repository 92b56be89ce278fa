// The events of a timetable, by plain rules on texts, and the counts of its statistics.

#include <gtest/gtest.h>

#include <random>

#include "core/ClockTime.h"
#include "core/Number.h"
#include "core/Text.h"
#include "operations/StatisticsChart.h"
#include "operations/TimetableEvents.h"
#include "operations/TimetableStatistics.h"
#include "simulator/TimeZones.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::array<std::string_view, 4> kCodes = {"EDDF", "EGLL", "eddf", ""};
constexpr std::array<std::string_view, 8> kPeriods = {"24Hr", "8hr", "WEEK", "Week",
                                                      "1Hr",  "5Hr", "0Hr",  "never"};
constexpr std::array<std::string_view, 8> kTimes = {"00:10:00", "23:30:00",   "9:05",       "25:00:00",
                                                    "12:00:30", "6/23:30:00", "0/00:10:00", "06/10:00:00"};

// The rows that the flight gives by the letter of the rules, on texts.
class PlainTimetable {
  public:
    PlainTimetable(const TimetableFilter& filter, std::string_view list) : filter_(filter), list_(list) {}

    void Add(const Flight& flight) {
        const auto percent = ParseWholeNumber(flight.Percent.substr(0, flight.Percent.size() - 1));
        const bool type =
            (filter_.IFR && flight.FlightType == "IFR") || (filter_.VFR && flight.FlightType == "VFR");
        if (flight.Removed || !percent || *percent > filter_.mostPercent || !type) return;
        for (std::size_t leg = 0; leg < flight.Legs.size(); ++leg) {
            if (list_.find(Concat(",", flight.Legs[leg].Destination, ",")) != std::string::npos)
                AddLeg(flight, leg);
        }
    }

    std::vector<std::string> rows;

  private:
    void AddLeg(const Flight& flight, std::size_t leg) {
        const std::size_t count = flight.Legs.size();
        const Leg& arriving = flight.Legs[leg];
        const Leg& departing = flight.Legs[(leg + 1) % count];
        const std::string_view from = flight.Legs[(leg + count - 1) % count].Destination;
        const bool weekly = EqualNoCase(flight.Period, "WEEK");
        const std::int32_t hours =
            weekly ? 24 : ParseWholeNumber(ReplaceAll(UpperText(flight.Period), "HR", "")).value_or(0);
        const int repeats = hours == 0 ? 0 : static_cast<int>(RoundHalfEven(24.0 / hours));
        for (int i = 0; i < repeats; ++i) {
            if (filter_.arrivals) AddRow("Arrive", from, arriving, arriving.ETA, weekly, i * hours);
            if (filter_.departures)
                AddRow("Depart", departing.Destination, departing, departing.DepartTime, weekly, i * hours);
        }
    }

    void AddRow(std::string_view kind, std::string_view end, const Leg& leg, std::string_view time,
                bool weekly, int later) {
        std::string label;
        std::string prefix;
        std::string_view clock = time;
        if (weekly) {
            const SplitTime split = SplitDayPrefix(time);
            prefix = split.Prefix;
            clock = split.Clock;
            if (prefix.size() != 2 || prefix[0] < '0' || prefix[0] > '6') return;
            label = Concat(" (", kWeekdayNames[static_cast<std::size_t>(prefix[0] - '0')], ")");
        }
        if (!ParseClockTime(clock)) return;
        ConvertZoneWeek(clock, filter_.zone, prefix, false);
        const std::string shown = ConvertZoneWeekday(clock, filter_.zone, label, false);
        if (weekly && filter_.day != kWholeWeek && prefix[0] - '0' != filter_.day) return;
        const std::int32_t seconds = (*ParseClockTime(shown) + later * kSecondsPerHour) % kSecondsPerDay;
        if (seconds < filter_.start || seconds > filter_.end) return;
        rows.push_back(Concat(FormatClockTime(seconds), label, "|", kind, "|", end, "|", leg.FlightNumber));
    }

    const TimetableFilter& filter_;
    std::string_view list_;
};

std::string RowOf(const TimetableRows& rows, std::int32_t row) {
    std::string text;
    for (const TimetableColumn column : {kEventTime, kEventKind, kEventOtherEnd, kEventFlightNumber}) {
        rows.AppendText(row, column, text);
        if (column != kEventFlightNumber) text.push_back('|');
    }
    return text;
}

TEST(TimetableEvents, AreThoseOfThePlainRules) {
    std::mt19937 engine(1);
    const auto below = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(engine);
    };
    const auto any = [&](const auto& of) { return of[below(of.size())]; };
    struct Airports {
        std::string_view typed;
        std::string_view list;
    };
    constexpr std::array<Airports, 6> kAirports = {{{" eddf , egll", ",EDDF,EGLL,"},
                                                    {"EDDF", ",EDDF,"},
                                                    {",EGLL,", ",EGLL,"},
                                                    {"EGLL,,EDDF", ",EGLL,,EDDF,"},
                                                    {"", ","},
                                                    {",", ","}}};
    constexpr std::array<std::string_view, 4> kZones = {"GMT", "GMT +01:00", "GMT -09:30", "+5"};
    std::size_t found = 0;
    for (int round = 0; round < 300; ++round) {
        const Airports airports = any(kAirports);
        TimetableFilter filter;
        filter.airports = airports.typed;
        filter.zone = any(kZones);
        filter.day = static_cast<std::int32_t>(below(8)) - 1;
        filter.start = static_cast<std::int32_t>(below(2)) * 3600;
        filter.end = kSecondsPerDay - 1 - static_cast<std::int32_t>(below(2)) * 3600;
        filter.mostPercent = any(std::array{50, 100});
        filter.arrivals = below(4) != 0;
        filter.departures = below(4) != 0;
        filter.VFR = below(2) != 0;
        Plan plan;
        PlainTimetable plain(filter, airports.list);
        for (int i = 0; i < 10; ++i) {
            Flight flight{"AC#1",
                          "N1",
                          any(std::array{"50%", "51%", "many%", "%"}),
                          std::string(any(kPeriods)),
                          any(std::array{"IFR", "VFR", "ifr"}),
                          {},
                          below(5) == 0};
            for (std::size_t leg = 0, legs = 1 + below(4); leg < legs; ++leg) {
                flight.Legs.push_back({std::string(any(kTimes)), std::string(any(kTimes)), false, "350", "F",
                                       Concat(i, "-", leg), std::string(any(kCodes))});
            }
            plan.Flights.Append(flight);
            plain.Add(flight);
        }
        const auto rows = FindTimetableEvents(plan, Fleet(), filter);
        std::vector<std::string> texts;
        for (std::int32_t row = 0; row < rows->Count(); ++row) texts.push_back(RowOf(*rows, row));
        EXPECT_EQ(texts, plain.rows) << "round " << round;
        found += texts.size();
    }
    EXPECT_GT(found, 1000u);
}

constexpr std::string_view kRound =
    ",N1,50%,24Hr,IFR,10:00:00,11:00:00,350,F,1,EDDF,12:00:00,13:00:00,350,F,1,EGLL";

TEST(TimetableStatistics, CountsAircraftOnTheGround) {
    test::FakeProgram fake;
    Plan& plan = fake.session.plan;
    plan.PlanAircrafts = {{"AC#1", "Jet", "", 0}, {"AC#2", "JET", "", 0}, {"AC#3", "Prop", "", 0}};
    for (const std::int32_t aircraftClass : {kClassSmallJet, kClassHugeJet}) {
        fake.session.fleet.FSAircrafts.emplace_back().Title = "jet";
        fake.session.fleet.FSAircrafts.back().Class = aircraftClass;
    }
    fake.session.fleet.FSAircrafts.emplace_back().Title = "Prop";
    fake.session.fleet.FSAircrafts.back().Class = kClassNotUsed;
    for (const std::string_view number : {"AC#1", "AC#2", "ac#2", "AC#3", "AC#2"}) {
        fake.AddFlight(Concat(number, kRound));
    }

    TimetableStatistics statistics(plan, fake.session.fleet);
    EXPECT_EQ(statistics.ClassOf("AC#1"), kClassNone) << "the last number of a title counts";
    EXPECT_EQ(statistics.ClassOf("AC#2"), kClassSmallJet) << "of the first aircraft of the title";
    EXPECT_EQ(statistics.ClassOf("ac#2"), kClassNone) << "numbers are compared exactly";
    EXPECT_EQ(statistics.ClassOf("AC#3"), kClassNone) << "not used";

    struct Step {
        bool arrives;
        std::int32_t flight;
        std::string_view time;
        std::int32_t current, maximum, jets, mostJets;
    };
    for (const Step& step : {
             Step{false, 1, "01:00:00", 0, 1, 0, 1},  // stood there before
             Step{true, 1, "02:00:00", 1, 1, 1, 1},   // no new maximum
             Step{true, 4, "03:00:00", 2, 2, 2, 2},
             Step{true, 4, "03:30:00", 3, 3, 3, 3},  // again, before it left
             Step{false, 4, "04:00:00", 2, 3, 2, 3},
             Step{false, 4, "04:30:00", 2, 3, 2, 3},  // its second arrival was no second key
             Step{false, 3, "05:00:00", 2, 3, 2, 3},
             Step{true, 0, "06:00:00", 3, 3, 2, 3},
             Step{false, 2, "23:59:59", 3, 4, 2, 3},
         }) {
        SCOPED_TRACE(step.time);
        statistics.Count(step.arrives, step.flight, step.time);
        EXPECT_EQ(statistics.all.current, step.current);
        EXPECT_EQ(statistics.all.maximum, step.maximum);
        EXPECT_EQ(statistics.classes[kClassSmallJet].current, step.jets);
        EXPECT_EQ(statistics.classes[kClassSmallJet].maximum, step.mostJets);
    }
    EXPECT_EQ(statistics.all.timeOfMaximum, "23:59:59");
    EXPECT_EQ(statistics.classes[kClassSmallJet].timeOfMaximum, "03:30:00");
    EXPECT_EQ(statistics.total.arrivals, 4);
    EXPECT_EQ(statistics.total.departures, 5);
    EXPECT_EQ(statistics.hours[4].departures, 2);
    EXPECT_EQ(statistics.hours[23].departures, 1);
}

TEST(TimetableStatistics, TheChartHasThePeaksOfTheReport) {
    test::FakeProgram fake;
    fake.session.plan.PlanAircrafts = {{"AC#1", "Jet", "", 0}, {"AC#2", "Prop", "", 0}};
    for (const std::int32_t aircraftClass : {kClassHugeJet, kClassMidProp}) {
        fake.session.fleet.FSAircrafts.push_back({});
        fake.session.fleet.FSAircrafts.back().Title = aircraftClass == kClassHugeJet ? "Jet" : "Prop";
        fake.session.fleet.FSAircrafts.back().Class = aircraftClass;
    }
    constexpr int kFlights = 300;
    for (int i = 0; i < kFlights; ++i) fake.AddFlight(Concat("AC#", i % 3, kRound));
    std::mt19937 random(1);
    for (const int rows : {1, 7, GroundSteps::kMostSteps, 2 * GroundSteps::kMostSteps + 1, 86400}) {
        TimetableStatistics statistics(fake.session.plan, fake.session.fleet);
        GroundSteps steps(rows);
        for (int row = 0; row < rows; ++row) {
            const std::int32_t seconds = row * (kSecondsPerDay / rows);
            const std::int32_t code = statistics.Count(
                random() % 2 == 0, static_cast<std::int32_t>(random() % kFlights), FormatClockTime(seconds));
            steps.Add(statistics, code, seconds);
        }
        SCOPED_TRACE(rows);
        ASSERT_TRUE(steps.InOrderOfTime());
        const std::vector<double> places = steps.Places();
        EXPECT_LE(places.size(), static_cast<std::size_t>(std::min(rows, GroundSteps::kMostSteps)));
        for (const std::size_t code : {0, int{kClassHugeJet}, int{kClassMidProp}}) {
            const GroundCount& count = code == 0 ? statistics.all : statistics.classes[code];
            const auto peak = std::max_element(steps.Counts(code).begin(), steps.Counts(code).end());
            EXPECT_EQ(*peak, count.maximum);
            if (code != 0) continue;
            const double place = places[static_cast<std::size_t>(peak - steps.Counts(code).begin())];
            EXPECT_EQ(FormatClockTime(static_cast<std::int64_t>(place)), count.timeOfMaximum);
        }
        steps.Add(statistics, kClassNone, -1);
        EXPECT_FALSE(steps.InOrderOfTime());
        EXPECT_LE(steps.Places().front(), 1 + rows / GroundSteps::kMostSteps);
    }
}

}  // namespace
}  // namespace orlo
