#include <gtest/gtest.h>

#include "shuffler/ShuffleWorld.h"
#include "support/FakeProgram.h"

namespace orlo::test {
namespace {

// What the console script of this window can't reach with its world.
TEST(SharesWindow, OddSetsAreToldAsTheyAre) {
    struct Case {
        AirlineSet set;
        std::int32_t noAirlineFlights;
        std::string_view table;
    };
    Case cases[] = {
        {MakeSet("", {}), 0,
         "Region: Global|No flight got an aircraft from this set. It names no airlines.|"},
        {MakeSet("", {{"Alpha", -5}, {"Beta", 70}}), 1,
         "Region: Global|Shares of the airlines|Airline\tPlanned\tAchieved|Alpha\t0\t0|Beta\t70\t100|"
         "1 flight got an aircraft from this set. No airline: 1 flight of the plan.|"},
    };
    cases[1].set.Flights = cases[1].set.Airlines[1].Flights = 1;
    for (Case& one : cases) {
        for (AirlineEntry& entry : one.set.Airlines) entry.PlannedPercent = entry.Percent;
        FakeProgram program;
        program.session.shuffle.RunAirlines.Global = one.set;
        program.session.shuffle.NoAirlineFlights = one.noAirlineFlights;
        program.session.shuffle.HasResult = true;
        program.form.mnuViewShares.enabled = true;
        program.Press(program.form.mnuViewShares);
        const SharesForm& shares = program.program.forms.frmShares;
        EXPECT_EQ(shares.chShares.Content().Table("|"), one.table);
        EXPECT_EQ(shares.cmdSavePicture.enabled, !one.set.Airlines.empty());
    }
}

// Two sets of one name are two rows, each with its own numbers, whatever the list is sorted by.
TEST(SharesWindow, ARowShowsItsOwnSet) {
    FakeProgram program;
    AirlineSets& sets = program.session.shuffle.RunAirlines;
    sets.Airports = {MakeSet("ONE1", {{"Alpha"}}), MakeSet("ONE1", {{"Beta"}})};
    sets.Cities = {MakeSet("City", {{"Gamma"}})};
    sets.Airports[0].Flights = 9;
    sets.Airports[1].Flights = 10;
    program.session.shuffle.HasResult = true;
    program.form.mnuViewShares.enabled = true;
    SharesForm& shares = program.program.forms.frmShares;
    std::string shown;
    program.inModal = [&] {
        program.ClickColumn(shares.lvSets, shares.lvSets.FindColumn("FLIGHTS"));
        for (std::int32_t position = 0; position < shares.lvSets.Count(); ++position) {
            program.ClickRow(shares.lvSets, shares.lvSets.PlaceAt(position));
            const ChartContent& content = shares.chShares.Content();
            shown += Concat(content.title, " ", content.plots.empty() ? "-" : content.plots[0].names[0], "|");
        }
    };
    program.Press(program.form.mnuViewShares);
    EXPECT_EQ(shown, "Region: Global -|City: City Gamma|Airport: ONE1 Alpha|Airport: ONE1 Beta|");
}

}  // namespace
}  // namespace orlo::test
