#include "operations/GeneratedLists.h"

#include <gtest/gtest.h>

#include "simulator/AirportLists.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

// Airports named 0, 1, 2 ... in their latitude.
std::vector<AirportRecord> AirportsOf(std::initializer_list<std::string_view> codes) {
    std::vector<AirportRecord> airports;
    for (const std::string_view code : codes) {
        AirportRecord& airport = airports.emplace_back();
        airport.Latitude = Concat("N", airports.size() - 1);
        airport.ICAO = code;
    }
    return airports;
}

TEST(AirportLists, ElevationsAreFeetWithHalvesToEven) {
    const std::pair<std::int32_t, const char*> cases[] = {
        {364, "1194"}, {-4, "-13"}, {500, "1640"}, {1500, "4922"}, {2'147'483'647, "7045893846"}};
    for (const auto& [elevation, feet] : cases) {
        AirportRecord airport;
        airport.ICAO = "eddf";
        airport.Elevation = elevation;
        EXPECT_EQ(FormatSceneryAirports({airport}), Concat("eddf,,,", feet, "\r\n"));
    }
}

// A code counts as listed where it stands between two bars in the text of the codes listed before.
TEST(AirportLists, EachCodeOfThePlanIsListedOnceEvenWhereItIsDamaged) {
    struct Case {
        std::initializer_list<std::string_view> scenery;
        std::initializer_list<std::string_view> legs;
        const char* listed;  // codes and latitudes
    };
    const Case cases[] = {
        {{"AAAA", "BBBB", "aaaa"}, {"bbbb", "AaAa", "XXXX", "BBBB", "aaaa"}, "BBBB,N1 AAAA,N0 "},
        {{"", "A", "B"}, {"A", "", "B"}, "A,N1 ,N0 B,N2 "},
        {{"", "A", "B"}, {"A", "B", ""}, "A,N1 B,N2 "},
        {{"A|B", "A", "B", "C"}, {"a|b", "A", "b", "C"}, "A|B,N0 C,N3 "},
        {{"A||B", "A", "B"}, {"A", "B", "A||B"}, "A,N1 B,N2 "},
        {{"A||B", "A", "B"}, {"B", "A", "A||B"}, "B,N2 A,N1 A||B,N0 "},
        {{"A|", "", "A"}, {"A|", "", "A"}, "A|,N0 "},
    };
    for (const Case& c : cases) {
        Flight flight;
        for (const std::string_view code : c.legs) flight.Legs.emplace_back().Destination = code;
        flight.Removed = true;
        FlightList flights;
        flights.Append(flight);
        const std::string text = FormatPlanAirports(flights, AirportsOf(c.scenery));
        EXPECT_EQ(ReplaceAll(text, ",,0\r\n", " "), c.listed);
    }
}

TEST(GeneratedLists, WithoutInstalledAircraftThereAreNoTypes) {
    test::FakeProgram fake;
    fake.session.plan.PlanLoaded = fake.form.cmdACTypeDat.enabled = true;
    fake.Press(fake.form.cmdACTypeDat);
    const std::vector<std::pair<int, std::string>> expected = {{48, "No FS Aircraft detected."}};
    EXPECT_EQ(fake.world.messages.shown, expected);
    EXPECT_TRUE(fake.world.files.files.empty());
}

TEST(GeneratedLists, AllTypesAreThoseWhoseTitleIsNotHidden) {
    test::FakeProgram fake;
    for (const std::string_view title : {"Jet One", "~Jet Two", "Jet Three", "Jet Four"})
        fake.AddInstalled(title).ATCType = "B";
    fake.session.fleet.FSAircrafts.back().ATCModel = "b";
    GenerateAllAircraftTypes(fake.context, fake.form);
    EXPECT_EQ(fake.world.files.files["/program/New AircraftTypes.dat"],
              "B,Jet One,-1,0,999,0,9999,-1,,-1,,-1\r\n"
              "B#2,Jet Three,-1,0,999,0,9999,-1,,-1,,-1\r\n"
              "b#3,Jet Four,-1,0,999,0,9999,-1,,-1,,-1\r\n");
}

}  // namespace
}  // namespace orlo
