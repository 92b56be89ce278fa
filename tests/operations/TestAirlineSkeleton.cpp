#include "operations/AirlineSkeleton.h"

#include <gtest/gtest.h>

#include "config/AirlineSetsFile.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

AirportRecord Place(std::string region, std::string country) {
    AirportRecord airport;
    airport.Region = std::move(region);
    airport.Country = std::move(country);
    return airport;
}

TEST(AirlineSkeleton, NamesEachRegionAndCountryOnceAndReadsAsAConfiguration) {
    const std::string text = FormatAirlineSkeleton({Place("Europe", "France"), Place("Asia", "Japan"),
                                                    Place("EUROPE", "Spain"), Place("Europe", "FRANCE")});
    const std::string rule =
        ";---------------------------------------------------------------------------------\r\n";
    EXPECT_EQ(
        text,
        rule + ";------------------------------------ R E G I O N S ------------------------------\r\n" +
            rule +
            ";Airline Format: AIRLINE,PERCENT\r\n;Tailnumber Format: #NUMBER\r\n;   Placeholder:\r\n"
            ";           ! - Random Number\r\n;           . - Random Char\r\n"
            ";           ? - Random Number or Char\r\n" +
            rule + "\r\n[Global]\r\n\r\n[Region:Europe]\r\n\r\n[Region:Asia]\r\n\r\n" + rule +
            ";----------------------------------- C O U N T R I E S ---------------------------\r\n" + rule +
            "\r\n[Country:Europe/France]\r\n\r\n[Country:Asia/Japan]\r\n\r\n[Country:EUROPE/Spain]\r\n\r\n");
    const AirlineSets sets = ParseAirlines(text);
    EXPECT_EQ(sets.Regions.size(), 2u);
    EXPECT_EQ(sets.Countries.size(), 3u);
}

TEST(AirlineSkeleton, WithoutSceneryItSaysSoAndWritesNothing) {
    test::FakeProgram fake;
    fake.Press(fake.form.mnuToolsAirlinesCFG);
    const std::vector<std::pair<int, std::string>> expected = {{16, "Couldn't find FS2002 Path."},
                                                               {48, "Unable to get FS Scenery."}};
    EXPECT_EQ(fake.world.messages.shown, expected);
    EXPECT_TRUE(fake.world.files.files.empty());
    EXPECT_TRUE(fake.form.enabled);
}

}  // namespace
}  // namespace orlo
