#include <gtest/gtest.h>

#include "shuffler/ShuffleWorld.h"

namespace orlo::test {
namespace {

// Two countries of one region and one of another; ONE1 and ONE2 share city and state.
void AddCountries(ShuffleWorld& made) {
    made.AddAirport("ONE1", "North", "One", "East", "Town");
    made.AddAirport("ONE2", "North", "One", "East", "Town");
    made.AddAirport("ONE3", "North", "One", "West", "Port");
    made.AddAirport("TWO1", "North", "Two", "", "");
    made.AddAirport("FAR1", "South", "Far", "", "");
}

// Each set has an airline of its own, with one aircraft: AC#1 airport ONE1, 2 city, 3 state, 4 country One,
// 5 region North, 6 global, 7 without airline, 8 airport ONE3, 9 country Two.
void AddLevels(ShuffleWorld& made) {
    for (std::string_view airline :
         {"Airport", "City", "State", "Country", "Region", "Global", "", "Other", "Two"}) {
        made.AddAircraft(Concat("Title ", airline), airline);
    }
    AirlineSets& sets = made.session.Airlines;
    sets.Airports = {MakeSet("one1", {{"Airport"}}), MakeSet("ONE3", {{"Other"}})};
    sets.Cities = {MakeSet("north/one/town", {{"City"}})};
    sets.States = {MakeSet("NORTH/One/East", {{"State"}})};
    sets.Countries = {MakeSet("North/One", {{"Country"}}), MakeSet("North/Two", {{"Two"}})};
    sets.Regions = {MakeSet("North", {{"Region"}})};
    sets.Global = MakeSet("", {{"Global"}});
}

void Ground(ShuffleWorld& made, const std::vector<int>& aircraft) {
    for (int number : aircraft) made.session.FSAircrafts[static_cast<std::size_t>(number - 1)].MaxRange = -1;
}

TEST(ShuffleEngine, TheSearchWidensFromTheAirportToTheWorld) {
    struct Case {
        std::vector<std::string_view> route;  // the flight starts at the last
        std::vector<int> grounded;
        bool visited;
        std::string_view expected;
    };
    const std::vector<Case> cases = {
        {{"TWO1", "ONE1"}, {}, false, "AC#1"},
        {{"TWO1", "ONE1"}, {1}, false, "AC#2"},
        {{"TWO1", "ONE1"}, {1, 2}, false, "AC#3"},
        {{"TWO1", "ONE1"}, {1, 2, 3}, false, "AC#4"},
        {{"TWO1", "ONE1"}, {1, 2, 3, 4}, false, "AC#5"},
        {{"TWO1", "ONE1"}, {1, 2, 3, 4, 5}, false, "AC#6"},
        {{"TWO1", "ONE1"}, {1, 2, 3, 4, 5, 6}, false, "AC#7"},
        {{"TWO1", "ONE1"}, {1, 2, 3, 4, 5, 6, 7}, false, "-"},
        // Domestic: the city of an airport on the way comes before the country.
        {{"ONE1", "ONE3"}, {1, 8}, false, "AC#2"},
        // ... but the last leg's destination is where it started, so it isn't looked at again.
        {{"ONE3", "ONE1"}, {1, 2, 3}, false, "AC#8"},
        // Not domestic: the country comes first, and other airports only where they are asked for.
        {{"ONE1", "TWO1"}, {}, false, "AC#9"},
        {{"ONE1", "TWO1"}, {9}, false, "AC#5"},
        {{"ONE1", "TWO1"}, {9}, true, "AC#1"},
        {{"ONE1", "TWO1"}, {9, 1, 2, 3}, true, "AC#4"},
        // The region is that of the airport looked at last.
        {{"ONE1", "FAR1"}, {}, false, "AC#6"},
        {{"ONE1", "FAR1"}, {1, 2, 3, 4}, true, "AC#5"},
        // An airport that the scenery doesn't know ends the search where it is met.
        {{"ONE1", "NONE"}, {}, true, "-"},
        {{"NONE", "TWO1"}, {}, true, "AC#9"},
        {{"NONE", "TWO1"}, {9}, true, "-"},
        {{"NONE", "TWO1"}, {9}, false, "AC#5"},
        {{"ONE1"}, {}, false, "AC#1"},
        {{}, {}, true, "-"},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(i);
        ShuffleWorld made;
        AddCountries(made);
        AddLevels(made);
        Ground(made, cases[i].grounded);
        made.session.CheckVisitedAirports = cases[i].visited;
        made.AddPosition("NONE");
        made.AddFlight(cases[i].route);
        const ShuffleResult result = made.Shuffle();
        EXPECT_TRUE(result.succeeded);
        EXPECT_EQ(made.Aircraft(), cases[i].expected);
        EXPECT_EQ(result.removed, cases[i].expected == "-" ? 1 : 0);
        EXPECT_EQ(result.assigned + result.removed, 1);
    }
}

TEST(ShuffleEngine, AnAircraftMustFitRouteAndAirports) {
    struct Case {
        std::string_view name;
        void (*change)(AirportRecord& airport, FSAircraft& aircraft, Session& session);
        bool fits;
    };
    const std::vector<Case> cases = {
        {"as it is", [](AirportRecord&, FSAircraft&, Session&) {}, true},
        {"runway just long enough", [](AirportRecord&, FSAircraft& a, Session&) { a.RunwayLength = 9000; },
         true},
        {"landing too short", [](AirportRecord& p, FSAircraft&, Session&) { p.LandingLength = 999; }, false},
        {"takeoff too short", [](AirportRecord& p, FSAircraft&, Session&) { p.TakeoffLength = 999; }, false},
        {"parking too small", [](AirportRecord& p, FSAircraft&, Session&) { p.MinParkingRadius = 9; }, false},
        {"no parking counts as 9999",
         [](AirportRecord& p, FSAircraft& a, Session&) {
             p.MinParkingRadius = 9999;
             a.MinParkingRadius = 50;  // the other airport has 50
         },
         true},
        {"soft", [](AirportRecord& p, FSAircraft&, Session&) { p.LandingSurface = kSurfaceSoft; }, true},
        {"soft, case aside",
         [](AirportRecord& p, FSAircraft& a, Session&) {
             p.TakeoffSurface = kSurfaceSoft;
             a.RunwayTypes = "sOFTly";
         },
         true},
        {"water", [](AirportRecord& p, FSAircraft&, Session&) { p.LandingSurface = kSurfaceWater; }, false},
        {"snow", [](AirportRecord& p, FSAircraft&, Session&) { p.LandingSurface = kSurfaceSnow; }, false},
        {"the roughest surface counts alone",
         [](AirportRecord& p, FSAircraft& a, Session&) {
             p.LandingSurface = kSurfaceSnow;
             a.RunwayTypes = "SNOW";
         },
         true},
        {"no runway types", [](AirportRecord&, FSAircraft& a, Session&) { a.RunwayTypes.clear(); }, false},
        {"range to the mile", [](AirportRecord&, FSAircraft& a, Session&) { a.MinRange = a.MaxRange = 60; },
         true},
        {"leg too long", [](AirportRecord&, FSAircraft& a, Session&) { a.MaxRange = 59; }, false},
        {"leg too short", [](AirportRecord&, FSAircraft& a, Session&) { a.MinRange = 61; }, false},
        {"distance unknown",
         [](AirportRecord&, FSAircraft&, Session& s) { s.PlanAirportIndex.Remove("ONE2"); }, false},
        {"distance unknown, no least range",
         [](AirportRecord&, FSAircraft& a, Session& s) {
             s.PlanAirportIndex.Remove("ONE2");
             a.MinRange = -1;
         },
         true},
        {"level to the foot", [](AirportRecord&, FSAircraft& a, Session&) { a.MinFL = a.MaxFL = 200; }, true},
        {"level too high", [](AirportRecord&, FSAircraft& a, Session&) { a.MaxFL = 199; }, false},
        {"level too low", [](AirportRecord&, FSAircraft& a, Session&) { a.MinFL = 201; }, false},
        {"levels are corrected anyway",
         [](AirportRecord&, FSAircraft& a, Session& s) {
             s.CheckFL = true;
             a.MaxFL = 199;
         },
         true},
        {"runways of 999999",
         [](AirportRecord& p, FSAircraft&, Session& s) {
             for (AirportRecord& airport : s.Airports) airport.LandingLength = airport.TakeoffLength = 999999;
             (void)p;
         },
         false},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.name);
        ShuffleWorld made;
        made.AddAirport("ONE1", "N", "One", "", "");
        made.AddAirport("ONE2", "N", "One", "", "");
        made.AddAircraft("Title", "A");
        made.session.Airlines.Global = MakeSet("", {{"A"}});
        test.change(made.session.Airports[1], made.session.FSAircrafts[0], made.session);
        made.AddFlight({"ONE1", "ONE2"});
        made.Shuffle();
        EXPECT_EQ(made.Aircraft(), test.fits ? "AC#1" : "-");
    }
}

// A world of one airport set and many flights that all start there.
void AddManyFlights(ShuffleWorld& made, AirlineSet set, int flights) {
    made.AddAirport("ONE1", "N", "One", "", "");
    made.AddAirport("ONE2", "N", "One", "", "");
    made.session.Airlines.Airports = {std::move(set)};
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
        const AirlineSet& set = made.session.RunAirlines.Airports[0];
        EXPECT_EQ(set.Flights, kFlights);
        for (std::size_t i = 0; i < test.expected.size(); ++i) {
            EXPECT_NEAR(set.Airlines[i].Flights * 100.0 / kFlights, test.expected[i], test.tolerance) << i;
        }
    }
}

TEST(ShuffleEngine, DrawsAreMadeOnlyBetweenTwoOrMore) {
    ShuffleWorld made;
    AddManyFlights(made, MakeSet("ONE1", {{"A"}}), 1);
    made.AddAircraft("T1", "A");
    made.Shuffle();
    EXPECT_EQ(made.random.taken, 0);
    made.AddAircraft("T2", "A");
    made.Shuffle();
    EXPECT_EQ(made.random.taken, 1);
}

TEST(ShuffleEngine, ASeedGivesOnePlanAndEachRunStartsFromTheRulesAsRead) {
    const auto make = [](unsigned seed) {
        auto made = std::make_unique<ShuffleWorld>(seed);
        AddManyFlights(*made, MakeSet("ONE1", {{"A", 80}, {"B", 70}}, "N!!!,D-..."), 50);
        for (std::string_view airline : {"A", "A", "B", "B"}) {
            made->AddAircraft(Concat("T", made->session.PlanAircraftCount()), airline);
        }
        made->session.OverwriteTailNumber = true;
        made->session.CheckFL = true;
        made->Shuffle();
        return made;
    };
    const auto rows = [](const ShuffleWorld& made) {
        std::string text;
        for (std::int32_t i = 0; i < made.session.FlightCount(); ++i)
            text.append(made.session.Flights.Row(i));
        return text;
    };
    const auto first = make(7);
    EXPECT_EQ(rows(*make(7)), rows(*first));
    EXPECT_NE(rows(*make(8)), rows(*first));

    EXPECT_EQ(first->session.Airlines.Airports[0].Airlines[1].Percent, 70);
    const std::string before = rows(*first);
    first->Shuffle();
    EXPECT_EQ(rows(*first), before);
    EXPECT_EQ(first->session.RunAirlines.Airports[0].Flights, 50);
}

TEST(ShuffleEngine, TailNumbersComeFromTheSetThatFoundTheAircraft) {
    struct Case {
        std::string_view name;
        bool overwrite;
        std::vector<int> grounded;
        std::string_view city, country, region, global;
        std::string_view expected;
    };
    const std::vector<Case> cases = {
        {"by the country", true, {2}, "CITY", "COUNTRY", "", "", "COUNTRY"},
        {"not asked for", false, {}, "CITY", "", "", "", "OLD"},
        {"the finding set has none", true, {2}, "CITY", "", "", "GLOBAL", "OLD"},
        {"no airline: the last set with patterns",
         true,
         {2, 4, 5, 6},
         "CITY",
         "COUNTRY",
         "REGION",
         "G",
         "COUNTRY"},
        {"no airline: a country without patterns clears them",
         true,
         {2, 4, 5, 6},
         "CITY",
         "",
         "REGION",
         "G",
         "REGION"},
        {"no airline: else those of the world", true, {2, 4, 5, 6}, "CITY", "", "", "G", "G"},
        {"no airline, none anywhere", true, {2, 4, 5, 6}, "CITY", "", "", "", "OLD"},
        {"no airline, not asked for", false, {2, 4, 5, 6}, "", "COUNTRY", "", "G", "OLD"},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.name);
        ShuffleWorld made;
        AddCountries(made);
        AddLevels(made);
        AirlineSets& sets = made.session.Airlines;
        sets.Airports.clear();
        sets.States.clear();
        sets.Cities[0].TailPatterns = test.city;
        sets.Countries[0].TailPatterns = test.country;
        sets.Regions[0].TailPatterns = test.region;
        sets.Global.TailPatterns = test.global;
        Ground(made, test.grounded);
        made.session.OverwriteTailNumber = test.overwrite;
        made.AddFlight({"TWO1", "ONE1"});
        made.Shuffle();
        EXPECT_EQ(made.session.Flights.At(0).TailNumber, test.expected);
    }
}

TEST(ShuffleEngine, ALevelThatIsNoNumberEndsTheRunAndKeepsWhatWasDecided) {
    for (std::string_view level : {"", "FL100", "99999999999"}) {
        SCOPED_TRACE(level);
        ShuffleWorld made;
        made.session.DebugOn = true;
        AddManyFlights(made, MakeSet("ONE1", {{"A"}}), 1);
        made.AddAircraft("T1", "A");
        made.AddFlight({"ONE2", "NONE"});
        made.AddFlight({"ONE2", "ONE1"}, level);
        made.AddFlight({"ONE2", "NONE"});
        made.session.Flights.SetRemoved(1, true);  // left as it is
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

TEST(ShuffleEngine, UseIsCountedWhereItBelongs) {
    ShuffleWorld made;
    AddManyFlights(made, MakeSet("ONE1", {{"A"}, {"a"}}), 40);
    made.AddAircraft("T1", "A");
    made.AddAircraft("T2", "B");
    made.session.PlanAircrafts.push_back({"AC#1", "T1", "120", 0});  // a number that stands twice
    made.Shuffle();
    const AirlineSet& set = made.session.RunAirlines.Airports[0];
    ASSERT_EQ(set.Airlines[0].Aircraft.size(), 2u);
    std::int32_t sum = 0;
    for (const AirlineEntry& entry : set.Airlines) {
        EXPECT_EQ(entry.Flights, entry.Aircraft[0].UseCount + entry.Aircraft[1].UseCount);
        sum += entry.Flights;
    }
    EXPECT_EQ(sum, 40);
    EXPECT_EQ(made.session.PlanAircrafts[0].UsageCount, 40);
    EXPECT_EQ(made.session.PlanAircrafts[2].UsageCount, 0);
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
