#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/Plan.h"
#include "simulator/Navigation.h"
#include "simulator/PlanPositions.h"
#include "support/CaseTable.h"

namespace orlo::test {
namespace {

Plan PlanOf(const std::vector<PlanAirport>& airports) {
    Plan plan;
    plan.PlanAirports = airports;
    for (std::int32_t i = 0; i < plan.PlanAirportCount(); ++i)
        plan.PlanAirportIndex.Add(airports[static_cast<std::size_t>(i)].ICAO, i);
    return plan;
}

using Route = std::pair<std::int32_t, std::int32_t>;  // distance and course

// By single questions; the prepared positions must tell the same to the bit.
Route RouteBetween(const Plan& plan, std::string_view from, std::string_view to) {
    const Route route{GetDistance(plan, from, to), GetCourse(plan, from, to)};
    const PlanPositions positions(plan);
    EXPECT_EQ(route, (Route{positions.Distance(from, to), positions.Course(from, to)})) << from << " " << to;
    return route;
}

TEST(Navigation, DistancesAndCoursesAgreeWithTheTableOfCases) {
    const auto rows = ReadCaseTable("distances.csv");
    if (!rows) GTEST_SKIP() << "no table of distances beside the checkout";
    for (const CaseRow& row : *rows) {
        const Plan plan = PlanOf({{row[0], row[1], row[2], "0"}, {row[3], row[4], row[5], "0"}});
        const Route expected{std::stoi(row[6]), std::stoi(row[7])};
        EXPECT_EQ(RouteBetween(plan, row[0], row[3]), expected) << row[0] << " " << row[3];
    }
    EXPECT_GE(rows->size(), 100u);
}

TEST(Navigation, RoutesOfSpecialPlaces) {
    const Plan plan = PlanOf({
        {"ZERO", "N0* 00.00'", "W0* 00.00'", "0"},
        {"NEAR", "N0* 30.00'", "W0* 00.99'", "0"},
        {"NRTH", "N1* 00.00'", "W0* 00.00'", "0"},
        {"SAME", "N0* 00.99'", "E0* 00.50'", "0"},
        {"SDEG", "N0* 60.00'", "E360* 00.00'", "0"},
        {"EAST", "N0* 00.00'", "E1* 00.00'", "0"},
        {"ANTI", "N0* 00.00'", "E180* 00.00'", "0"},
        {"POLE", "N90* 00.00'", "W10* 00.00'", "0"},
        {"PTWO", "N90* 00.00'", "E70* 00.00'", "0"},
        {"NONE", "N0 00.00'", "W0* 00.00'", "0"},
    });
    const struct {
        std::string_view from, to;
        Route expected;
    } cases[] = {
        {"ZERO", "ZERO", {0, -1}},   {"GONE", "GONE", {0, -1}},  // equal codes come before the look-up
        {"ZERO", "zero", {-1, -1}},  // the equal test minds case, the look-up does not
        {"zero", "nrth", {60, 0}},   // one degree of latitude
        {"NRTH", "ZERO", {60, 180}}, {"ZERO", "NEAR", {30, 0}},
        {"NEAR", "ZERO", {30, 0}},   // south within one degree
        {"ZERO", "SAME", {-1, -1}},  // two codes at one place
        {"NRTH", "SDEG", {-1, -1}},  // one place in two spellings
        {"POLE", "PTWO", {-1, -1}},  {"ZERO", "EAST", {60, 90}},
        {"EAST", "ZERO", {60, 270}}, {"ZERO", "ANTI", {-1, -1}},  // the formula divides by zero
        {"ZERO", "GONE", {-1, -1}},  {"GONE", "ZERO", {-1, -1}},
        {"ZERO", "NONE", {-1, -1}},
    };
    for (const auto& [from, to, route] : cases)
        EXPECT_EQ(RouteBetween(plan, from, to), route) << from << " " << to;
    const PlanPositions positions(plan);
    EXPECT_EQ(positions.Distance(0, 0), -1);
    EXPECT_EQ(positions.Distance(0, -1), -1);
    EXPECT_EQ(positions.Course(1000, 0), -1);
}

TEST(Navigation, CoordinatesDropTheDecimalsOfMinutes) {
    const struct {
        std::string_view text;
        std::int32_t degrees, minutes;
    } cases[] = {{"N47* 27.57'", 47, 27}, {"s33* 56.99'", -33, -56}, {"e151*10.", -151, -10},
                 {"W0* 05.1'", 0, 5},     {"S0* 05.1'", 0, -5},      {"X12* 3.0", 12, 3}};
    for (const auto& c : cases) {
        std::int32_t degrees = 7, minutes = 7;
        EXPECT_TRUE(ParseCoordinate(c.text, degrees, minutes)) << c.text;
        EXPECT_EQ(std::pair(degrees, minutes), std::pair(c.degrees, c.minutes)) << c.text;
    }
    for (std::string_view text : {"N4727.57'", "N47* 27'", "N47.5* 27'", "*27.5", "N* 27.5", "Nxx* 27.5",
                                  "N47* .5", "S-2147483648* 0.0", "S99999999999* 0.0", ""}) {
        std::int32_t degrees = 7, minutes = 7;
        EXPECT_FALSE(ParseCoordinate(text, degrees, minutes)) << text;
        EXPECT_EQ(std::pair(degrees, minutes), std::pair(0, 0)) << text;
    }
}

TEST(Navigation, SceneryDistanceCountsUnknownCodesFromZeroDegrees) {
    std::vector<AirportRecord> airports(3);
    for (AirportRecord& airport : airports) airport.Longitude = "W0* 0.0000'";
    airports[0].ICAO = "AAAA";
    airports[0].Latitude = "N1* 0.0000'";
    airports[1].ICAO = "BBBB";
    airports[1].Latitude = "N3* 0.0000'";
    airports[2].ICAO = "CCCC";
    EXPECT_EQ(GetSceneryDistance(airports, "AAAA", "BBBB"), 120);
    EXPECT_EQ(GetSceneryDistance(airports, "AAAA", "GONE"), 60);
    EXPECT_EQ(GetSceneryDistance(airports, "bbbb", "AAAA"), 60);
    EXPECT_EQ(GetSceneryDistance(airports, "GONE", "AWAY"), -1);
    EXPECT_EQ(GetSceneryDistance(airports, "AAAA", "CCCC"), -1);
    EXPECT_EQ(GetSceneryDistance({}, "AAAA", "BBBB"), -1);
    EXPECT_EQ(GetSceneryDistance({}, "AAAA", "AAAA"), 0);
}

TEST(Navigation, ArrivalFollowsDistanceAndSpeed) {
    const struct {
        std::int32_t distance;
        std::string_view departure, period;
        std::int32_t speed;
        std::string_view expected;
    } cases[] = {
        {300, "10:00:00", "24Hr", 120, "12:30:00"},
        {-1, "10:00:00", "24Hr", 120, "10:15:00"},
        {0, "10:00:00", "24Hr", 120, "10:15:00"},
        {1, "10:00:07", "24Hr", 24, "10:02:07"},  // 2.5 minutes go to the even 2
        {3, "10:00:00", "24Hr", 24, "10:08:00"},  // 7.5 to 8
        {120, "23:30", "8Hr", 120, "00:30:00"},
        {120, "6/23:30:00", "WEEK", 120, "0/00:30:00"},
        {120, "2/22:30:00", "week", 120, "2/23:30:00"},
        {100, "1/12:00:00", "Week", 2, "1/14:00:00"},  // 50 hours, and no hour before noon
        {100, "1/23:00:00", "Week", 2, "2/01:00:00"},  // 50 hours step one day only
        {120, "10:00:00", "24Hr", 0, "10:00:00"},
        {120, "9:5", "24Hr", 0, "9:5"},
        {120, "22:00:00", "WEEK", 120, "22:00:00"},
        {120, "x/22:00:00", "WEEK", 120, "x/22:00:00"},
        {120, "1/25:00:00", "WEEK", 120, "1/25:00:00"},
        {120, "1/22:00:00", "24Hr", 120, "1/22:00:00"},
        {120, "noon", "24Hr", 120, "noon"},
        {2147483647, "00:00:00", "24Hr", 1, "07:00:00"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(GetArrivalTime(c.distance, c.departure, c.period, c.speed), c.expected)
            << c.distance << " " << c.departure << " " << c.period << " " << c.speed;
    }
}

TEST(Navigation, ArrivalTakesTheSpeedOfThePlanAircraft) {
    Plan plan;
    plan.PlanAircrafts = {{"AC#1", "", "240", 0}, {"AC#2", "", "0", 0}, {"AC#3", "", "fast", 0}};
    const struct {
        std::int32_t distance, aircraft, speed;
        std::string_view expected;
    } cases[] = {{120, 0, -1, "10:30:00"},  {120, 0, 60, "10:30:00"},  {120, -1, 60, "12:00:00"},
                 {120, 3, 120, "11:00:00"}, {120, -1, -1, "10:00:00"}, {120, 1, 60, "10:15:00"},
                 {120, 2, 60, "10:00:00"},  {-1, 0, -1, "10:15:00"},   {0, 0, -1, "10:15:00"}};
    for (const auto& [distance, aircraft, speed, expected] : cases) {
        EXPECT_EQ(GetArrivalTime(plan, distance, "10:00:00", "24Hr", aircraft, speed), expected)
            << distance << " " << aircraft << " " << speed;
    }
}

}  // namespace
}  // namespace orlo::test
