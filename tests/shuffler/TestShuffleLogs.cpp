#include <gtest/gtest.h>

#include "shuffler/ShuffleWorld.h"

namespace orlo::test {
namespace {

// The lines of a log, each of which must end in CR LF.
std::string Lines(const std::string& log) {
    const std::string text = ReplaceAll(log, "\r\n", "\n");
    EXPECT_EQ(text.find('\r'), std::string::npos);
    EXPECT_EQ(ReplaceAll(text, "\n", "\r\n"), log);
    return text;
}

// One flight of each outcome: by airport set, by the world's set, without airline, for want of a runway, for
// an unknown airport.
void FillWorld(ShuffleWorld& made) {
    made.session.switches.DebugOn = true;
    made.session.shuffle.OverwriteTailNumber = true;
    made.session.shuffle.ChangeIFRVFR = true;
    for (std::string_view code : {"ONE1", "ONE2"}) made.AddAirport(code, "North", "One");
    made.AddAirport("WET1", "North", "Two").LandingSurface = kSurfaceWater;
    made.AddAirport("ICE1", "North", "Two").LandingSurface = kSurfaceSnow;
    made.AddAircraft("Jet One", "Alpha");
    made.AddAircraft("Boat", "Beta").RunwayTypes = "WATER";
    made.AddAircraft("Sledge", "").RunwayTypes = "SNOW";
    made.session.fleet.FSAircrafts[1].Class = 77;
    made.session.fleet.FSAircrafts[2].Class = kClassMicroProp;
    made.session.rules.Airlines.Airports = {MakeSet("ONE1", {{"Alpha", 70}, {"Gamma", 10}}, "N1")};
    made.session.rules.Airlines.Cities = {MakeSet("North/One/Empty", {})};
    made.session.rules.Airlines.Global = MakeSet("", {{"Alpha"}, {"Beta"}, {"Alpha"}});
    made.AddFlight({"ONE2", "ONE1"}, "200", "VFR");
    made.AddFlight({"WET1", "ONE2"}, "95");
    made.AddFlight({"ICE1", "ONE2"});
    made.session.fleet.FSAircrafts[2].MaxRange = 180;
    made.AddFlight({"ICE1", "ONE1", "WET1", "ICE1"});
    made.session.scenery.Airports[0].LandingLength = 1200;
    made.AddFlight({"ONE1", "none"});
    made.AddFlight({"WET1", "WET1"});
}

TEST(ShuffleLogs, EachFlightIsExplained) {
    ShuffleWorld made;
    FillWorld(made);
    made.session.fleet.FSAircrafts[2].RunwayLength = 1300;
    made.Shuffle();
    const std::string log = Lines(made.world.files.files["/plan/Shuffle.log"]);
    const std::size_t head = log.find("\n\n");  // behind the lines of comment
    EXPECT_EQ(std::count(log.begin(), log.end(), ';'), 12);
    EXPECT_EQ(log.substr(head), R"(

Alpha/Jet One/Small Jet/Maker/Type
AC#1/N1/IFR/ONE1/ONE2/200/200/60/60/ONE1

Beta/Boat/Unknown/Maker/Type
AC#2/OLD/IFR/ONE2/WET1/95/95/60/60/Global

No Airline/Sledge/Micro Prop/Maker/Type
AC#3/OLD/IFR/ONE2/ICE1/200/200/120/120/No Airline

Runway: 1200/50/SNOW
NO AIRCRAFT/OLD/IFR/ICE1/ICE1/200/200/0/180

ICAO none unknown. Please check your Airport configuration.
NO AIRCRAFT/OLD/IFR/none/ONE1/200/200/-1/-1

Beta/Boat/Unknown/Maker/Type
AC#2/OLD/IFR/WET1/WET1/200/200/0/0/Global

)");
}

TEST(ShuffleLogs, EachSetTellsWhatItWasGiven) {
    ShuffleWorld made;
    FillWorld(made);
    made.Shuffle();
    // Lines end in "|", and "=" is a rule.
    const auto airline = [](std::string_view name, int flights, int planned, std::string_view achieved,
                            std::string_view aircraft) {
        return Concat("\t=|\tAirline: ", name, "|\tTotal flights: ", flights, "|\tPlaned Percent: ", planned,
                      "|\tAchieved Percent: ", achieved, "|\tAircraft (", aircraft.empty() ? 0 : 1, "):|",
                      aircraft, "\t=||");
    };
    const std::string expected = Concat(
        "=|No Airline: |Total flights: 2|\tAircraft (1):|\t\tSledge: 2 flights|\t=||",
        "=|Region: Global|Airlines: 3|Total flights: 2|=||",
        airline("Alpha", 0, 33, "0.00", "\t\tJet One: 0 flights|"),
        airline("Beta", 2, 33, "100.00", "\t\tBoat: 2 flights|"),
        airline("Alpha", 0, 33, "0.00", "\t\tJet One: 0 flights|"),
        "=|City: North/One/Empty|Airlines: 0|Total flights: 0|=||",
        "=|Airport: ONE1|Airlines: 2|Total flights: 1|=||",
        airline("Alpha", 1, 100, "100.00", "\t\tJet One: 1 flights|"), airline("Gamma", 0, 0, "0.00", ""));
    const std::string log = Lines(made.world.files.files["/plan/Shuffle Result.log"]);
    EXPECT_EQ(ReplaceAll(ReplaceAll(log, std::string(66, '-'), "="), "\n", "|"), expected);
}

TEST(ShuffleLogs, WithoutLoggingOldLogsStayAndAFullDiskHarmsNothing) {
    ShuffleWorld made;
    FillWorld(made);
    made.session.switches.DebugOn = false;
    made.world.files.files["/plan/Shuffle.log"] = "old";
    made.Shuffle();
    EXPECT_EQ(made.world.files.files.size(), 1u);
    EXPECT_EQ(made.world.files.files["/plan/Shuffle.log"], "old");

    made.session.switches.DebugOn = true;
    made.world.files.failAfterBytes = 100;
    EXPECT_TRUE(made.Shuffle().succeeded);
    made.world.files.failCreate = true;
    EXPECT_TRUE(made.Shuffle().succeeded);
}

}  // namespace
}  // namespace orlo::test
