#include <gtest/gtest.h>

#include <array>
#include <map>

#include "shuffler/FlightAttributes.h"
#include "shuffler/ShuffleWorld.h"

namespace orlo::test {
namespace {

TEST(FlightAttributes, TailNumbersFollowTheirPatternsAndDraws) {
    struct Case {
        std::string_view patterns;
        bool removeMinus;
        std::vector<double> draws;
        std::string_view expected;
    };
    const std::vector<Case> cases = {
        {"", false, {}, ""},
        {"N!!!", false, {0.9, 0.0, 0.5, 0.999}, "N049"},  // 4.5 goes to the even 4
        {"A-..", true, {0.5, 0.0, 0.999}, "AAZ"},         //
        {"A-..", false, {0.5, 0.1, 0.9}, "A-CW"},         // 2.5 and 22.5 go to the even ones
        {"??", false, {0.0, 0.6, 0.5, 0.4, 0.02}, "4A"},  // 4.5 goes to 4, 0.5 to the first letter
        {"ONE,TWO,THREE", false, {0.2}, "ONE"},           //
        {"ONE,TWO,THREE", false, {0.25}, "ONE"},          // 0.5 goes to 0
        {"ONE,TWO,THREE", false, {0.75}, "THREE"},        // 1.5 goes to 2
        {"ONE,,THREE", false, {0.5}, ""},
        {"A-!,", true, {0.9}, ""},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.patterns);
        FakeRandom random;
        random.draws = test.draws;
        EXPECT_EQ(CreateTailNumber(test.patterns, test.removeMinus, random), test.expected);
        EXPECT_EQ(random.taken, test.draws.size());
    }
}

TEST(FlightAttributes, EndsOfAChoiceComeHalfAsOftenAsTheOthers) {
    SeededRandom random(5);
    std::map<char, int> counts;
    const int draws = 90000;
    for (int i = 0; i < draws; ++i) ++counts[CreateTailNumber("!", false, random).front()];
    for (char digit = '0'; digit <= '9'; ++digit) {
        const double share = digit == '0' || digit == '9' ? 0.5 / 9 : 1.0 / 9;
        EXPECT_NEAR(static_cast<double>(counts[digit]) / draws, share, 0.005) << digit;
    }
}

// Loads a flight of two legs, AAAA to BBBB and back to AAAA.
struct TwoLegs {
    ShuffleWorld made;
    PlanPositions positions;
    RouteAirports airports;
    WorkingFlight flight;

    explicit TwoLegs(std::string_view type, std::string_view period = "24Hr", std::string_view day = "")
        : positions(Prepare(made)), airports(made.session.Airports, positions, made.session.Airlines) {
        made.session.Flights.Append({"AC#1",
                                     "T",
                                     "50%",
                                     std::string(period),
                                     std::string(type),
                                     {{Concat(day, "23:30:00"), "x", true, "200", "X", "1", "BBBB"},
                                      {Concat(day, "08:00:00"), "x", false, "200", "X", "2", "AAAA"}},
                                     false});
        LoadFlight(made.session.Flights.At(0), flight);
        for (std::int32_t i = 0; i < 2; ++i)
            flight.LegAt(i).Airport = airports.Number(flight.LegAt(i).Destination);
        for (std::int32_t i = 0; i < 2; ++i) {
            flight.LegAt(i).Distance =
                airports.Distance(flight.LegBefore(i).Airport, flight.LegAt(i).Airport);
        }
    }
    static const Session& Prepare(ShuffleWorld& made) {
        made.AddPosition("AAAA");
        made.AddPosition("BBBB");  // west of it
        return made.session;
    }
};

TEST(FlightAttributes, FlightRulesFollowTheClassOfAVfrFlight) {
    struct Case {
        std::int32_t aircraftClass;
        std::string_view type, expectedType, expectedMode;
    };
    for (const Case& test : std::vector<Case>{{kClassNone, "VFR", "VFR", "X"},
                                              {kClassNotUsed, "vfr", "IFR", "F"},
                                              {kClassMicroProp, "VFR", "VFR", "R"},
                                              {kClassMidProp, "vfr", "vfr", "R"},
                                              {kClassLargeProp, "VFR", "IFR", "F"},
                                              {kClassHugeJet, "VFR", "IFR", "F"},
                                              {kClassMicroProp, "IFR", "IFR", "X"},
                                              {kClassHugeJet, "IFR", "IFR", "X"}}) {
        SCOPED_TRACE(Concat(test.aircraftClass, " ", test.type));
        TwoLegs two(test.type);
        ApplyFlightRules(test.aircraftClass, two.flight);
        EXPECT_EQ(two.flight.FlightType, test.expectedType);
        EXPECT_EQ(two.flight.LegAt(0).NumberMode, test.expectedMode);
        EXPECT_EQ(two.flight.LegAt(1).NumberMode, test.expectedMode);
    }
}

TEST(FlightAttributes, LevelsAreDrawnForTheFirstLegLast) {
    TwoLegs two("IFR");
    FSAircraft aircraft;
    aircraft.MinFL = 0;
    aircraft.MaxFL = 500;
    const std::vector<FlightLevelRule> rules = {{0, 100, 0, 179, 100, 300, 20},
                                                {0, 100, 180, 359, 110, 310, 20}};
    FakeRandom random;
    random.draws = {0.0, 0.999};
    ApplyFlightLevels(rules, aircraft, two.airports, random, two.flight);
    EXPECT_EQ(two.flight.LegAt(1).FlightLevel, "100");  // east
    EXPECT_EQ(two.flight.LegAt(0).FlightLevel, "310");  // west
}

TEST(FlightAttributes, ArrivalsFollowDistanceAndSpeedAndNothingElseMoves) {
    struct Case {
        std::string_view period, day;
        std::int32_t speed;
        std::string_view first, second;
    };
    for (const Case& test : std::vector<Case>{{"24Hr", "", 60, "00:30:00", "09:00:00"},
                                              {"WEEK", "6/", 60, "0/00:30:00", "6/09:00:00"},
                                              {"WEEK", "", 60, "23:30:00", "08:00:00"},
                                              {"24Hr", "", 0, "23:30:00", "08:00:00"}}) {
        SCOPED_TRACE(Concat(test.period, " ", test.day, " ", test.speed));
        TwoLegs two("IFR", test.period, test.day);
        ApplyFlightTimes(test.speed, two.flight);
        EXPECT_EQ(two.flight.LegAt(0).ETA, test.first);
        EXPECT_EQ(two.flight.LegAt(1).ETA, test.second);
        FlightList list;
        StoreFlight(two.flight, false, list);
        const Flight stored = list.Unpack(0);
        EXPECT_EQ(stored.Legs[0].DepartTime, Concat(test.day, "23:30:00"));
        EXPECT_TRUE(stored.Legs[0].FixedETA);
        EXPECT_FALSE(stored.Legs[1].FixedETA);
    }
}

}  // namespace
}  // namespace orlo::test
