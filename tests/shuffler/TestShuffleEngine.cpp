#include <gtest/gtest.h>

#include "shuffler/ShuffleWorld.h"

namespace orlo::test {
namespace {

// A world of one airport set and many flights that all start there.
void AddManyFlights(ShuffleWorld& made, AirlineSet set, int flights) {
    made.AddAirport("ONE1", "N", "One", "", "");
    made.AddAirport("ONE2", "N", "One", "", "");
    made.session.rules.Airlines.Airports = {std::move(set)};
    for (int i = 0; i < flights; ++i) made.AddFlight({"ONE2", "ONE1"});
}

TEST(ShuffleEngine, AirlinesEndNearTheirShares) {
    constexpr int kFlights = 10000;
    struct Case {
        std::string_view name;
        std::vector<Share> shares;
        std::vector<std::string_view> airlines;  // of the aircraft
        std::vector<double> expected;            // percent of the flights by airline
        double tolerance;
    };
    const std::vector<Case> cases = {
        {"60 and 40", {{"A", 60}, {"B", 40}}, {"A", "B"}, {60, 40}, 1},
        {"more aircraft alone give no more", {{"A", 60}, {"B", 40}}, {"A", "B", "B", "B"}, {60, 40}, 1},
        {"the 50 gets what 70 leaves", {{"A", 70}, {"B", 50}}, {"A", "B"}, {70, 30}, 1},
        {"one airline takes all, whatever its share", {{"A", 10}, {"B", 90}}, {"A"}, {100, 0}, 0},
        {"a share of 0 is taken while all are even", {{"A", 0}, {"B", 100}}, {"A", "B"}, {0, 100}, 1},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.name);
        ShuffleWorld made(3);
        AddManyFlights(made, MakeSet("ONE1", test.shares), kFlights);
        int number = 0;
        for (std::string_view airline : test.airlines) made.AddAircraft(Concat("T", ++number), airline);
        EXPECT_EQ(made.Shuffle().assigned, kFlights);
        const AirlineSet& set = made.session.shuffle.RunAirlines.Airports[0];
        EXPECT_EQ(set.Flights, kFlights);
        for (std::size_t i = 0; i < test.expected.size(); ++i) {
            EXPECT_NEAR(set.Airlines[i].Flights * 100.0 / kFlights, test.expected[i], test.tolerance) << i;
        }
    }
}

TEST(ShuffleEngine, ASeedGivesOnePlanAndEachRunStartsFromTheRulesAsRead) {
    const auto make = [](unsigned seed) {
        auto made = std::make_unique<ShuffleWorld>(seed);
        AddManyFlights(*made, MakeSet("ONE1", {{"A", 80}, {"B", 70}}, "N!!!,D-..."), 50);
        for (std::string_view airline : {"A", "A", "B", "B"}) {
            made->AddAircraft(Concat("T", made->session.plan.PlanAircraftCount()), airline);
        }
        made->session.shuffle.OverwriteTailNumber = true;
        made->session.shuffle.CheckFL = true;
        made->Shuffle();
        return made;
    };
    const auto rows = [](const ShuffleWorld& made) {
        std::string text;
        for (std::int32_t i = 0; i < made.session.plan.FlightCount(); ++i)
            text.append(made.session.plan.Flights.Line(i));
        return text;
    };
    const auto first = make(7);
    EXPECT_EQ(rows(*make(7)), rows(*first));
    EXPECT_NE(rows(*make(8)), rows(*first));

    EXPECT_EQ(first->session.rules.Airlines.Airports[0].Airlines[1].Percent, 70);
    const std::string before = rows(*first);
    first->Shuffle();
    EXPECT_EQ(rows(*first), before);
    EXPECT_EQ(first->session.shuffle.RunAirlines.Airports[0].Flights, 50);
}

TEST(ShuffleEngine, ALevelThatIsNoNumberEndsTheRunAndKeepsWhatWasDecided) {
    for (std::string_view level : {"", "FL100", "99999999999"}) {
        SCOPED_TRACE(level);
        ShuffleWorld made;
        made.session.switches.DebugOn = true;
        AddManyFlights(made, MakeSet("ONE1", {{"A"}}), 1);
        made.AddAircraft("T1", "A");
        made.AddFlight({"ONE2", "NONE"});
        made.AddFlight({"ONE2", "ONE1"}, level);
        made.AddFlight({"ONE2", "NONE"});
        made.session.plan.Flights.SetRemoved(1, true);  // left as it is
        const ShuffleResult result = made.Shuffle();
        EXPECT_FALSE(result.succeeded);
        EXPECT_EQ(result.assigned, 1);
        EXPECT_EQ(made.Aircraft(), "AC#1 - AC#99 AC#99");
        ASSERT_EQ(made.world.messages.shown.size(), 1u);
        EXPECT_EQ(made.world.messages.shown[0],
                  std::pair(int{kMarkCritical}, std::string("Error (Flight 3):\nType mismatch")));
        EXPECT_TRUE(made.world.files.FileExists("/plan/Shuffle.log"));
        EXPECT_FALSE(made.world.files.FileExists("/plan/Shuffle Result.log"));
    }
}

TEST(ShuffleEngine, EventsRunOnceInAThousandAndOneFlights) {
    ShuffleWorld made;
    AddManyFlights(made, MakeSet("ONE1", {{"A"}}), 2500);
    made.Shuffle();
    EXPECT_EQ(made.world.windows.eventsProcessed, 2);
    const auto& lines = made.world.progress.lines;
    EXPECT_EQ(lines,
              (std::vector<std::string>{"text Getting FS2002 Scenery...", "text Matching Aircraft...",
                                        "text Preparing Cache...", "text Rearranging Flightplan...",
                                        "max 2501", "value 1001", "value 2002", "text Cleaning Cache..."}));
}

}  // namespace
}  // namespace orlo::test
