#include <gtest/gtest.h>

#include "support/FlightEditProgram.h"

namespace orlo {
namespace {

using Editor = test::FlightEditProgram;
using enum MessageAnswer;
using Texts = std::vector<std::string>;

Flight TwoLegs(std::string_view period = "24Hr", std::string_view day = "") {
    return Editor::FlightOf(period, {Editor::FreeLeg(Concat(day, "10:00:00"), "BBBB"),
                                     Editor::FreeLeg(Concat(day, "23:30:00"), "AAAA")});
}

TEST(FlightEditor, WithoutASelectedLegItsFieldsAreEmptyAndDisabled) {
    Editor fake;
    fake.session.switches.CheckFlightLevels = false;
    fake.Edit(
        TwoLegs(),
        [&] {
            FlightEditForm& form = fake.editor;
            EXPECT_FALSE(fake.form.enabled);
            EXPECT_TRUE(form.opIFR.checked && form.ckFlightTimes.checked && !form.ckFlightLevel.checked);
            EXPECT_EQ(form.frLeg.caption,
                      "Edit Le&g properties - Distance 300nm - Course 270\xB0 - FL060-260 +020");
            EXPECT_EQ(form.txtTime.text + " " + form.txtETA.text, "23:30:00 00:30:00");

            form.lvLegs.Select(form.lvLegs.current, false);
            Event none{&form, &form.lvLegs, EventKind::SelectRow};
            fake.program.pump.Deliver(none);
            EXPECT_EQ(form.frLeg.caption, "Edit Le&g properties");
            EXPECT_EQ(form.txtTime.text, "");
            EXPECT_FALSE(form.txtTime.enabled || form.cmdAdd.enabled || form.cmdDelete.enabled);
        },
        {}, 1);
    EXPECT_TRUE(fake.form.enabled);
    EXPECT_EQ(fake.edited, TwoLegs()) << "nothing was accepted";
}

TEST(FlightEditor, GivesTheTitleOfAnInstalledAircraftAndTheNumberOfAnother) {
    Editor fake;
    fake.SwitchChecksOff();
    for (const bool fromSearch : {false, true}) {
        fake.session.search.SearchResults.Clear();
        fake.session.search.SearchResults.Append(TwoLegs());
        fake.session.plan.Flights = fake.session.search.SearchResults;
        fake.inModal = [&] {
            fake.Type(fake.editor.txtReg, "D-ABCD");
            fake.Accept();
        };
        EXPECT_EQ(EditFlight(fake.context, 0, fromSearch, 0), "Jet (fast)");
        EXPECT_EQ(fake.session.search.SearchResults.At(0).TailNumber, fromSearch ? "D-ABCD" : "N1");
        EXPECT_EQ(fake.session.plan.Flights.At(0).TailNumber, fromSearch ? "N1" : "D-ABCD");
        EXPECT_EQ(EditFlight(fake.context, 1, fromSearch, 0), "") << "there is no such flight";
    }
    EXPECT_EQ(fake.Edit(TwoLegs(),
                        [&] {
                            fake.Choose(fake.editor.cmAircraft, "Glider (AC#2)");
                            fake.Accept();
                        }),
              "AC#2");
    EXPECT_EQ(fake.edited.ACNumber, "AC#2");
    EXPECT_EQ(fake.edited.Legs[0].ETA, "13:00:00") << "300 miles at 100 knots";
}

TEST(FlightEditor, AnUnknownAircraftHasToBeReplacedAndLeavesTheArrivalsAlone) {
    Editor fake;
    fake.SwitchChecksOff();
    Flight flight = TwoLegs();
    flight.ACNumber = "ac#1";
    flight.Legs[0].ETA = "12:34:56";
    const std::string result = fake.Edit(flight, [&] {
        EXPECT_EQ(fake.editor.cmAircraft.index, -1);
        fake.Accept();
        EXPECT_FALSE(fake.editor.closeRequest);
        EXPECT_EQ(fake.Row(0), "AAAA BBBB 10:00:00 12:34:56 0001 FL100");
        fake.Choose(fake.editor.cmAircraft, "Jet (fast) (AC#1)");
        fake.Press(fake.editor.ckFlightTimes);
        fake.Accept();
    });
    EXPECT_EQ(result, "Jet (fast)");
    EXPECT_EQ(fake.said, Texts{"You need to select an aircraft to save the flight."});
    EXPECT_EQ(fake.world.messages.shown.front().first, kMarkExclamation);
    EXPECT_TRUE(fake.session.switches.CheckFlightTimes && !fake.session.switches.CheckFlightLevels)
        << "as the boxes were";
    EXPECT_EQ(fake.edited.Legs[0].ETA, "11:00:00");
}

TEST(FlightEditor, CancelAndTheCloseBoxKeepTheSwitchesAndNothingElse) {
    for (const bool closeBox : {false, true}) {
        Editor fake;
        fake.Edit(TwoLegs(), [&] {
            fake.Type(fake.editor.txtReg, "D-ABCD");
            fake.Press(fake.editor.ckAircraftRange);
            EXPECT_TRUE(fake.session.switches.CheckAircraftRange);
            closeBox ? fake.PressCloseBox(fake.editor) : fake.Press(fake.editor.cmdCancel);
            EXPECT_TRUE(fake.editor.closeRequest);
        });
        EXPECT_EQ(fake.edited, TwoLegs());
        EXPECT_FALSE(fake.session.switches.CheckAircraftRange);
        EXPECT_TRUE(fake.session.switches.CheckFlightTimes && fake.session.switches.CheckFlightLevels);
    }
}

TEST(FlightEditor, UndoBringsBackTheFlightAsItWasAtEntry) {
    Editor fake;
    Flight flight = TwoLegs("WEEK", "3/");
    flight.Legs.push_back(Editor::FixedLeg("4/01:00:00", "4/02:00:00", "CCCC"));
    fake.Edit(flight,
              [&] {
                  fake.ClickRow(fake.editor.lvLegs, 1);
                  fake.Press(fake.editor.cmdDelete);
                  fake.Choose(fake.editor.cmArrival, "AAAA");
                  fake.Choose(fake.editor.cmPeriod, "8Hr");
                  fake.Press(fake.editor.opVFR);
                  EXPECT_FALSE(fake.editor.cmDay.visible);
                  fake.Press(fake.editor.cmdUndo);
                  EXPECT_EQ(fake.editor.lvLegs.Count(), 3);
                  EXPECT_EQ(fake.editor.cmDay.Text(), "Wednesday");
                  EXPECT_TRUE(fake.editor.cmDay.visible && fake.editor.opIFR.checked);
                  EXPECT_EQ(fake.editor.cmPeriod.Text(), "WEEK");
                  fake.Press(fake.editor.ckFlightTimes);
                  fake.Press(fake.editor.ckAircraftRange);
                  fake.Press(fake.editor.ckFlightLevel);
                  fake.Accept();
              },
              {Yes, Yes});
    EXPECT_EQ(fake.edited, flight);
}

TEST(FlightEditor, OddFlightsAreHarmless) {
    Leg broken = Editor::FreeLeg("9/99:00", "ZZZZ");
    broken.FlightLevel = "high";
    const Leg dayless = Editor::FreeLeg("10:00:00", "BBBB");
    const std::vector<std::vector<Leg>> shapes = {{}, {dayless}, {broken}, {broken, dayless, broken}};
    for (const std::vector<Leg>& legs : shapes) {
        for (const std::string_view period : {"WEEK", "24Hr", "3 months", ""}) {
            Editor fake;
            fake.session.switches.FEditZone = "nowhere";
            const auto useAll = [&] {
                FlightEditForm& form = fake.editor;
                for (const std::int32_t row : {0, 1}) {
                    if (row < form.lvLegs.Count()) fake.ClickRow(form.lvLegs, row);
                    for (ComboBox* combo : {&form.cmDeparture, &form.cmArrival}) fake.Choose(*combo, "CCCC");
                    fake.Choose(form.cmDay, "Saturday");
                    for (TextBox* field : {&form.txtTime, &form.txtETA, &form.txtLevel, &form.txtPercent}) {
                        fake.Type(*field, "23:59");
                        fake.Leave(*field);
                    }
                    fake.Press(form.ckFixedETA);
                    for (Button* button : {&form.cmdAdd, &form.cmdAdd, &form.cmdDelete, &form.cmdPrint})
                        fake.Press(*button);
                    fake.Choose(form.cmPeriod, "WEEK");
                    fake.Choose(form.cmPeriod, "1Hr");
                }
                fake.Accept();
                EXPECT_TRUE(form.closeRequest);
            };
            EXPECT_EQ(fake.Edit(Editor::FlightOf(period, legs), useAll, std::vector(200, Yes), 7),
                      "Jet (fast)");
            EXPECT_EQ(fake.edited.LegCount() == 0, legs.empty());
        }
    }
}

}  // namespace
}  // namespace orlo
