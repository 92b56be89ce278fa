// Sizes of rows were once worked out by hand, field by field; a wrong one would have written past its row.

#include <gtest/gtest.h>

#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanViews.h"
#include "operations/CorrectFlightLevels.h"
#include "operations/CorrectFlightTimes.h"
#include "operations/EditFlights.h"
#include "operations/RemoveMinus.h"
#include "operations/SearchFlights.h"
#include "shuffler/ShuffleEngine.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::size_t kLong = 1024;

std::string Long(char character) {
    return std::string(kLong, character);
}
// Still readable: a number or time behind so many blanks.
std::string Padded(std::string_view text) {
    return std::string(kLong - text.size(), ' ').append(text);
}

Flight LongFlight() {
    Flight flight{Long('7'), "", Long('5'), Padded("24Hr"), Padded("IFR"), {}, false};
    for (std::size_t i = 0; i < kLong / 2; ++i) flight.TailNumber.append("N-");
    flight.Legs = {
        {Padded("10:00:00"), Padded("11:00:00"), true, Padded("350"), Long('F'), Long('1'), Long('A')},
        {Padded("11:00:10"), Padded("13:00:00"), true, Padded("330"), Long('R'), Long('2'), Long('B')},
        {Padded("13:00:10"), Padded("14:00:00"), true, Padded("310"), Long('F'), Long('3'), Long('A')}};
    return flight;
}

struct LongWorld : test::FakeProgram {
    LongWorld() {
        session.plan.PlanLoaded = true;
        session.plan.Flights.Append(LongFlight());
        session.plan.PlanAircrafts = {{Long('7'), Long('T'), "300", 0}};
        FSAircraft& aircraft = AddInstalled(Long('t'));
        aircraft.RunwayTypes = "Hard";
        aircraft.Class = kClassLargeJet;
        aircraft.CruiseSpeed = 400;
        session.rules.FlightLevelRules = {{0, 9999, -1, 359, 100, 200, 20}};
        for (const char code : {'A', 'B'}) {
            AddPlanAirport(Long(code), "N0* 00.00'", code == 'A' ? "E0* 00.00'" : "E9* 00.00'");
            AirportRecord& record = session.scenery.Airports.emplace_back();
            record.ICAO = Long(code);
            record.TakeoffLength = record.LandingLength = 9000;
            record.TakeoffSurface = record.LandingSurface = kSurfaceHard;
            record.MinParkingRadius = 50;
        }
        ResetExportView(context);
    }
};

// The texts that no correction touches.
std::string Kept(const Flight& flight) {
    std::string kept = flight.ACNumber + flight.Percent + flight.FlightType + flight.Legs[0].DepartTime;
    for (const Leg& leg : flight.Legs) kept += leg.NumberMode + leg.FlightNumber + leg.Destination;
    return kept;
}

TEST(LongFields, AFlightWhoseEveryFieldIsAKilobyteGoesThroughAllThatChangesFlights) {
    LongWorld world;
    Plan& plan = world.session.plan;
    RemoveMinusFromTailNumbers(plan);
    Flight expected = LongFlight();
    expected.TailNumber = std::string(kLong / 2, 'N');
    EXPECT_EQ(plan.Flights.Unpack(0), expected);
    CorrectFlightTimes(plan, world.session.switches);
    CorrectFlightLevels(plan, world.session.fleet, world.session.rules.FlightLevelRules, world.world.random);
    const Flight corrected = plan.Flights.Unpack(0);
    EXPECT_EQ(Kept(corrected), Kept(expected));
    for (const Leg& leg : corrected.Legs) EXPECT_EQ(leg.FlightLevel.size(), 3u);
    for (const std::size_t leg : {1, 2}) {
        EXPECT_EQ(corrected.Legs[leg].DepartTime.size() + corrected.Legs[leg].ETA.size(), 16u);
    }
    world.session.rules.Airlines.Global.TailPatterns = Long('!');
    EXPECT_EQ(ShuffleFlightplan(world.session, world.world.services, "").assigned, 1);
    const Flight shuffled = plan.Flights.Unpack(0);
    EXPECT_EQ(shuffled.TailNumber.size(), kLong);
    EXPECT_EQ(shuffled.ACNumber, Long('7'));

    SearchFlights(world.context, "", "", SearchMode::Fields);
    EnableExportPane(world.context);
    world.inModal = [&] {
        FlightEditForm& editor = world.program.forms.frmFlightEdit;
        world.Type(editor.txtReg, Long('R'));
        world.Press(editor.cmdOK);
    };
    world.world.messages.answers = std::deque<MessageAnswer>(20, MessageAnswer::Yes);
    world.Press(world.form.cmdEditFlight);
    EXPECT_EQ(plan.Flights.At(0).TailNumber, Long('R'));
    world.Press(world.form.cmdAddFlight);
    EXPECT_EQ(plan.Flights.Count(), 2);
    world.form.lvExPreview.SelectAll(true);
    world.Press(world.form.cmdDeleteFlight);
    EXPECT_TRUE(plan.Flights.Removed(0));
    world.Press(world.form.mnuToolsUndo);
    EXPECT_EQ(plan.Flights.Unpack(0), shuffled);
}

}  // namespace
}  // namespace orlo
