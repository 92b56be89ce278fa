#include <gtest/gtest.h>

#include <initializer_list>

#include "core/Session.h"
#include "simulator/Navigation.h"
#include "simulator/PlanPositions.h"
#include "support/CaseTable.h"

namespace orlo::test {
namespace {

Session PlanOf(std::initializer_list<PlanAirport> airports) {
    Session session;
    session.plan.PlanLoaded = true;
    for (const PlanAirport& airport : airports) {
        session.plan.PlanAirportIndex.Add(airport.ICAO, session.plan.PlanAirportCount());
        session.plan.PlanAirports.push_back(airport);
    }
    return session;
}

struct Route {
    std::int32_t distance;
    std::int32_t course;
    bool operator==(const Route&) const = default;
};
void PrintTo(const Route& route, std::ostream* out) {
    *out << route.distance << "nm " << route.course;
}

// By single questions; the prepared positions must tell the same to the bit.
Route RouteBetween(const Session& session, std::string_view from, std::string_view to) {
    const Route route{GetDistance(session.plan, from, to), GetCourse(session.plan, from, to)};
    const PlanPositions positions(session.plan);
    EXPECT_EQ(route, (Route{positions.Distance(from, to), positions.Course(from, to)})) << from << " " << to;
    return route;
}

TEST(Navigation, DistancesAndCoursesAgreeWithTheTableOfCases) {
    const auto rows = ReadCaseTable("distances.csv");
    if (!rows) GTEST_SKIP() << "no table of distances beside the checkout";
    for (const CaseRow& row : *rows) {
        const Session session = PlanOf({{row[0], row[1], row[2], "0"}, {row[3], row[4], row[5], "0"}});
        const Route expected{std::stoi(row[6]), std::stoi(row[7])};
        EXPECT_EQ(RouteBetween(session, row[0], row[3]), expected) << row[0] << " " << row[3];
    }
    EXPECT_GE(rows->size(), 100u);
}

TEST(Navigation, RoutesOfSpecialPlaces) {
    const Session session = PlanOf({
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
    struct Case {
        std::string_view from, to;
        Route expected;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"ZERO", "ZERO", {0, -1}},
             {"GONE", "GONE", {0, -1}},   // equal codes come before the look-up
             {"ZERO", "zero", {-1, -1}},  // the equal test minds case, the look-up does not
             {"zero", "nrth", {60, 0}},   // one degree of latitude
             {"NRTH", "ZERO", {60, 180}},
             {"ZERO", "NEAR", {30, 0}},
             {"NEAR", "ZERO", {30, 0}},   // south within one degree
             {"ZERO", "SAME", {-1, -1}},  // two codes at one place
             {"NRTH", "SDEG", {-1, -1}},  // one place in two spellings
             {"POLE", "PTWO", {-1, -1}},
             {"ZERO", "EAST", {60, 90}},
             {"EAST", "ZERO", {60, 270}},
             {"ZERO", "ANTI", {-1, -1}},  // the formula divides by zero
             {"ZERO", "GONE", {-1, -1}},
             {"GONE", "ZERO", {-1, -1}},
             {"ZERO", "NONE", {-1, -1}},
         }) {
        EXPECT_EQ(RouteBetween(session, c.from, c.to), c.expected) << c.from << " " << c.to;
    }
    const PlanPositions positions(session.plan);
    EXPECT_EQ(positions.Distance(0, 0), -1);
    EXPECT_EQ(positions.Distance(0, -1), -1);
    EXPECT_EQ(positions.Course(1000, 0), -1);
}

TEST(Navigation, CoordinatesDropTheDecimalsOfMinutes) {
    struct Case {
        std::string_view text;
        bool read;
        std::int32_t degrees, minutes;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"N47* 27.57'", true, 47, 27},
             {"s33* 56.99'", true, -33, -56},
             {"e151*10.", true, -151, -10},
             {"W0* 05.1'", true, 0, 5},
             {"S0* 05.1'", true, 0, -5},
             {"X12* 3.0", true, 12, 3},
             {"N4727.57'", false, 0, 0},
             {"N47* 27'", false, 0, 0},
             {"N47.5* 27'", false, 0, 0},
             {"*27.5", false, 0, 0},
             {"N* 27.5", false, 0, 0},
             {"Nxx* 27.5", false, 0, 0},
             {"N47* .5", false, 0, 0},
             {"S-2147483648* 0.0", false, 0, 0},
             {"S99999999999* 0.0", false, 0, 0},
             {"", false, 0, 0},
         }) {
        std::int32_t degrees = 7, minutes = 7;
        EXPECT_EQ(ParseCoordinate(c.text, degrees, minutes), c.read) << c.text;
        EXPECT_EQ(degrees, c.degrees) << c.text;
        EXPECT_EQ(minutes, c.minutes) << c.text;
    }
}

AirportRecord SceneryAirport(const std::string& code, const std::string& latitude) {
    AirportRecord airport;
    airport.ICAO = code;
    airport.Latitude = latitude;
    airport.Longitude = "W0* 0.0000'";
    return airport;
}

TEST(Navigation, SceneryDistanceCountsUnknownCodesFromZeroDegrees) {
    const std::vector<AirportRecord> airports = {SceneryAirport("AAAA", "N1* 0.0000'"),
                                                 SceneryAirport("BBBB", "N3* 0.0000'"),
                                                 SceneryAirport("CCCC", "")};
    EXPECT_EQ(GetSceneryDistance(airports, "AAAA", "BBBB"), 120);
    EXPECT_EQ(GetSceneryDistance(airports, "AAAA", "GONE"), 60);
    EXPECT_EQ(GetSceneryDistance(airports, "bbbb", "AAAA"), 60);
    EXPECT_EQ(GetSceneryDistance(airports, "GONE", "AWAY"), -1);
    EXPECT_EQ(GetSceneryDistance(airports, "AAAA", "CCCC"), -1);
    EXPECT_EQ(GetSceneryDistance({}, "AAAA", "BBBB"), -1);
    EXPECT_EQ(GetSceneryDistance({}, "AAAA", "AAAA"), 0);
}

TEST(Navigation, ArrivalFollowsDistanceAndSpeed) {
    struct Case {
        std::int32_t distance;
        std::string_view departure, period;
        std::int32_t speed;
        std::string_view expected;
    };
    for (const Case& c : std::initializer_list<Case>{
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
         }) {
        EXPECT_EQ(GetArrivalTime(c.distance, c.departure, c.period, c.speed), c.expected)
            << c.distance << " " << c.departure << " " << c.period << " " << c.speed;
    }
}

TEST(Navigation, ArrivalTakesTheSpeedOfThePlanAircraft) {
    Session session =
        PlanOf({{"AAAA", "N1* 0.00'", "W0* 0.00'", "0"}, {"BBBB", "N3* 0.00'", "W0* 0.00'", "0"}});
    session.plan.PlanAircrafts = {{"AC#1", "", "240", 0}, {"AC#2", "", "0", 0}, {"AC#3", "", "fast", 0}};
    const PlanPositions positions(session.plan);
    struct Case {
        std::int32_t aircraft, speed;
        std::string_view to, expected;
    };
    for (const Case& c : std::initializer_list<Case>{
             {0, -1, "BBBB", "10:30:00"},
             {0, 60, "BBBB", "10:30:00"},
             {-1, 60, "BBBB", "12:00:00"},
             {3, 120, "BBBB", "11:00:00"},
             {-1, -1, "BBBB", "10:00:00"},
             {1, 60, "BBBB", "10:15:00"},
             {2, 60, "BBBB", "10:00:00"},
             {0, -1, "GONE", "10:15:00"},
             {0, -1, "AAAA", "10:15:00"},
         }) {
        EXPECT_EQ(GetArrivalTime(session.plan, positions.Distance("AAAA", c.to), "10:00:00", "24Hr",
                                 c.aircraft, c.speed),
                  c.expected)
            << c.aircraft << " " << c.speed << " " << c.to;
    }
}

}  // namespace
}  // namespace orlo::test
