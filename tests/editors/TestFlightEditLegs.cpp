#include <gtest/gtest.h>

#include "core/ClockTime.h"
#include "support/FlightEditProgram.h"

namespace orlo {
namespace {

using Editor = test::FlightEditProgram;
using enum MessageAnswer;
using Texts = std::vector<std::string>;

std::string RouteOf(const Flight& flight) {
    std::string text;
    for (const Leg& leg : flight.Legs) text += Concat(leg.Destination, leg.FixedETA ? "@ " : " ");
    return text;
}

TEST(FlightEditLegs, ANewLegComesBehindTheSelectedOneButBeforeTheLast) {
    struct Case {
        std::string_view period;
        std::vector<Leg> legs;
        std::int32_t selected;
        std::int32_t place;  // of the new leg
        std::string_view departs, route;
    };
    const auto pair = [](std::string_view depart, std::string_view arrive, std::string_view day = "") {
        return std::vector{Editor::FixedLeg(depart, arrive, "BBBB"),
                           Editor::FixedLeg(Concat(day, "12:00:00"), Concat(day, "13:00:00"), "AAAA")};
    };
    const std::vector<Leg> odd = {Editor::FixedLeg("08:00:00", "bad"), Editor::FreeLeg("12:00:00", "AAAA")};
    constexpr std::string_view kThree = "BBBB@ BBBB@ AAAA@ ";
    const std::vector<Case> cases = {
        {"24Hr", pair("08:00:00", "09:15:30"), 0, 1, "10:15:30", kThree},
        {"24Hr", pair("08:00:00", "23:30:00"), 1, 1, "00:30:00", kThree},
        {"week", pair("6/20:00:00", "6/23:00:00", "1/"), 0, 1, "0/00:00:00", kThree},
        {"WEEK", pair("2/20:00:00", "2/22:59:59", "4/"), 0, 1, "2/23:59:59", kThree},
        {"24Hr", odd, 0, 1, "12:00:00", "BBBB@ BBBB AAAA "},
        {"24Hr", {Editor::FixedLeg("08:00:00", "09:00:00")}, 0, 0, "10:00:00", "BBBB@ BBBB@ "},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(Concat(row.period, " ", row.departs));
        Editor fake;
        fake.SwitchChecksOff();
        Flight flight = Editor::FlightOf(row.period, row.legs);
        flight.Legs[0].FlightLevel = "210";
        fake.Edit(flight, [&] {
            fake.ClickRow(fake.editor.lvLegs, row.selected);
            fake.ReleaseKey(fake.editor.lvLegs, kKeyInsert);
            EXPECT_EQ(fake.editor.lvLegs.current, row.place);
            EXPECT_EQ(fake.editor.lvLegs.FindKey(Concat("#", row.place)), row.place);
            EXPECT_EQ(fake.editor.txtNumber.text, "0000");
            fake.Accept();
        });
        const Leg& leg = fake.edited.Legs[static_cast<std::size_t>(row.place)];
        EXPECT_EQ(leg.DepartTime, row.departs);
        // A free leg of no length takes 15 minutes.
        EXPECT_EQ(leg.ETA, leg.FixedETA ? row.departs : "12:15:00");
        EXPECT_EQ(leg.FlightLevel, "210");
        EXPECT_EQ(leg.NumberMode, "F");
        EXPECT_EQ(RouteOf(fake.edited), row.route);
    }
}

TEST(FlightEditLegs, AirportsChangeTheLegsThatMeetThereAndTheirArrivals) {
    Editor fake;
    fake.Edit(
        Editor::FlightOf(
            "24Hr", {Editor::FreeLeg("08:00:00", "BBBB"), Editor::FixedLeg("10:00:00", "11:11:11", "CCCC"),
                     Editor::FreeLeg("13:00:00", "AAAA")}),
        [&] {
            fake.Choose(fake.editor.cmDeparture, "CCCC");
            EXPECT_EQ(fake.Row(0), "CCCC BBBB 08:00:00 09:00:00 0001 FL100");
            EXPECT_EQ(fake.Row(2), "CCCC CCCC 13:00:00 13:15:00 0001 FL100") << "no distance";
            fake.Choose(fake.editor.cmArrival, "CCCC");
            EXPECT_EQ(fake.Row(0), "CCCC CCCC 08:00:00 08:15:00 0001 FL100");
            EXPECT_EQ(fake.Row(1), "CCCC CCCC 10:00:00 11:11:11 0001 FL100") << "a fixed arrival";
            EXPECT_EQ(fake.editor.txtETA.text, "08:15:00");
            EXPECT_EQ(fake.editor.frLeg.caption, "Edit Le&g properties - Distance 0nm - FL100");
            fake.ClickRow(fake.editor.lvLegs, 2);
            fake.Choose(fake.editor.cmArrival, "AAAA");
            EXPECT_EQ(fake.Row(0), "AAAA CCCC 08:00:00 10:00:00 0001 FL100");
            fake.Choose(fake.editor.cmAircraft, "Glider (AC#2)");
            EXPECT_EQ(fake.Row(2), "CCCC AAAA 13:00:00 19:00:00 0001 FL100");
            EXPECT_EQ(fake.editor.frLeg.caption, "Edit Le&g properties - Distance 600nm - Course 270\xB0")
                << "no levels for what isn't installed";
        });
}

TEST(FlightEditLegs, TypedTimesAreTakenInTheZoneAndTheArrivalFollows) {
    struct Case {
        std::string_view period, zone;
        std::string_view day;  // empty: not chosen
        std::string_view time;
        std::string_view shown;   // in the row, departure and arrival
        std::string_view stored;  // the same in GMT
    };
    const std::vector<Case> cases = {
        {"24Hr", "GMT", "", "7:5", "07:05:00 08:05:00", "07:05:00-08:05:00"},
        {"24Hr", "GMT +01:00", "", "00:30:15", "00:30:15 01:30:15", "23:30:15-00:30:15"},
        {"WEEK", "GMT", "Saturday", "23:30", "6/23:30:00 0/00:30:00", "6/23:30:00-0/00:30:00"},
        {"WEEK", "GMT +01:00", "Sunday", "0:15", "0/00:15:00 0/01:15:00", "6/23:15:00-0/00:15:00"},
        {"WEEK", "GMT -05:00", "Saturday", "20:00", "6/20:00:00 6/21:00:00", "0/01:00:00-0/02:00:00"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(Concat(row.period, " ", row.zone, " ", row.time));
        Editor fake;
        fake.SwitchChecksOff();
        const std::string day = row.period == "WEEK" ? "3/" : "";
        fake.Edit(Editor::FlightOf(row.period, {Editor::FreeLeg(Concat(day, "12:00:00"), "BBBB"),
                                                Editor::FixedLeg(Concat(day, "18:00:00"), "bad", "AAAA")}),
                  [&] {
                      fake.Choose(fake.editor.cmZone, row.zone);
                      fake.Type(fake.editor.txtTime, row.time);
                      if (!row.day.empty()) fake.Choose(fake.editor.cmDay, row.day);
                      EXPECT_EQ(fake.Row(0), Concat("AAAA BBBB ", row.shown, " 0001 FL100"));
                      EXPECT_TRUE(fake.Leave(fake.editor.txtTime));
                      EXPECT_EQ(fake.editor.txtTime.text, FormatClockTime(*ParseClockTime(row.time)));
                      fake.Accept();
                  });
        EXPECT_EQ(Concat(fake.edited.Legs[0].DepartTime, "-", fake.edited.Legs[0].ETA), row.stored);
        EXPECT_EQ(fake.session.switches.FEditZone, row.zone);
    }
}

TEST(FlightEditLegs, AFixedArrivalStaysUntilItIsTypedOrSetFree) {
    Editor fake;
    fake.session.switches.FEditZone = "GMT +02:00";
    fake.Edit(Editor::FlightOf("WEEK", {Editor::FreeLeg("6/20:00:00", "BBBB"),
                                        Editor::FixedLeg("3/10:00:00", "3/11:00:00", "AAAA")}),
              [&] {
                  FlightEditForm& form = fake.editor;
                  EXPECT_FALSE(fake.Type(form.txtETA, "05:00")) << "disabled";
                  fake.Press(form.ckFixedETA);
                  fake.Type(form.txtETA, "21:00");
                  EXPECT_EQ(fake.Row(0), "AAAA BBBB 6/22:00:00 0/21:00:00 0001 FL100")
                      << "earlier than the departure: the next day";
                  fake.Leave(form.txtETA);
                  EXPECT_EQ(form.txtETA.text, "21:00:00");
                  fake.Type(form.txtTime, "12:00");
                  EXPECT_EQ(fake.Row(0), "AAAA BBBB 6/12:00:00 0/21:00:00 0001 FL100");
                  fake.Leave(form.txtETA);
                  fake.Choose(form.cmDay, "Sunday");
                  EXPECT_EQ(fake.Row(0), "AAAA BBBB 0/12:00:00 1/21:00:00 0001 FL100")
                      << "the day moves with that of the departure";
                  fake.Type(form.txtETA, "11:00");
                  EXPECT_EQ(fake.Row(0), "AAAA BBBB 0/12:00:00 1/11:00:00 0001 FL100");
                  fake.Choose(form.cmDay, "Saturday");
                  fake.Press(form.ckFixedETA);
                  EXPECT_EQ(fake.Row(0), "AAAA BBBB 6/12:00:00 6/13:00:00 0001 FL100");
                  EXPECT_FALSE(form.txtETA.enabled);
              });
}

TEST(FlightEditLegs, InvalidTextsAreNotStoredAndKeepTheFocus) {
    constexpr std::string_view kTime = "Invalid time format (hh:mm[:ss])";
    constexpr std::string_view kLevel = "Flight Level has to be a value between 10 and 999";
    constexpr std::string_view kPercent = "Percent has to be a value between 1 and 99.";
    struct Case {
        std::string_view field, text;
        std::string_view message;  // empty: valid
        std::string_view stored;
    };
    const std::vector<Case> cases = {
        {"txtTime", "24:00", kTime, "08:00:00"},
        {"txtTime", "", kTime, "08:00:00"},
        {"txtTime", "9:05", "", "09:05:00"},
        {"txtETA", "12:60", kTime, "09:00:00"},
        {"txtETA", "12:59", "", "12:59:00"},
        {"txtLevel", "9", kLevel, "100"},
        {"txtLevel", "1000", kLevel, "100"},
        {"txtLevel", "ten", kLevel, "100"},
        {"txtLevel", "10", "", "010"},
        {"txtLevel", "999", "", "999"},
        {"txtPercent", "0", kPercent, "50%"},
        {"txtPercent", "100", kPercent, "50%"},
        {"txtPercent", "7", "", "7%"},
        {"txtPercent", "99", "", "99%"},
        {"txtNumber", "Any Text", "", "Any Text"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(Concat(row.field, " ", row.text));
        Editor fake;
        fake.SwitchChecksOff();
        fake.Edit(Editor::FlightOf("24Hr", {Editor::FixedLeg("08:00:00", "09:00:00")}), [&] {
            auto& field = static_cast<TextBox&>(*fake.editor.Find(row.field));
            EXPECT_TRUE(fake.Type(field, row.text));
            EXPECT_EQ(fake.Leave(field), row.message.empty());
            fake.Accept();
        });
        EXPECT_EQ(fake.said, row.message.empty() ? Texts{} : Texts{std::string(row.message)});
        const Leg& leg = fake.edited.Legs[0];
        EXPECT_EQ(row.field == "txtTime"      ? leg.DepartTime
                  : row.field == "txtETA"     ? leg.ETA
                  : row.field == "txtLevel"   ? leg.FlightLevel
                  : row.field == "txtPercent" ? fake.edited.Percent
                                              : leg.FlightNumber,
                  row.stored);
    }
}

TEST(FlightEditLegs, OptionsAndChecksAreStoredAndWhatTheFileCannotHoldBecomesBlanks) {
    Editor fake;
    fake.SwitchChecksOff();
    fake.Edit(Editor::FlightOf("24Hr", {Editor::FreeLeg("08:00:00", "BBBB")}), [&] {
        EXPECT_TRUE(fake.editor.ckUseNumber.checked);
        fake.Press(fake.editor.ckUseNumber);
        fake.Press(fake.editor.ckFixedETA);
        fake.Press(fake.editor.opVFR);
        fake.Type(fake.editor.txtReg, "D-A,B");
        fake.Type(fake.editor.txtNumber, "1;//2");
        // Enter leaves no field, but what is typed in it counts.
        fake.editor.focus = &fake.editor.txtLevel;
        fake.Type(fake.editor.txtLevel, "5");
        fake.Accept();
        EXPECT_FALSE(fake.editor.closeRequest);
        fake.Type(fake.editor.txtLevel, "55");
        fake.Accept();
        EXPECT_TRUE(fake.editor.closeRequest);
    });
    const Leg& leg = fake.edited.Legs[0];
    EXPECT_EQ(Concat(fake.edited.FlightType, " ", fake.edited.TailNumber), "VFR D-A B");
    EXPECT_EQ(Concat(leg.NumberMode, " ", leg.FlightNumber, " ", leg.FlightLevel), "R 1   2 055");
    EXPECT_TRUE(leg.FixedETA);
}

}  // namespace
}  // namespace orlo
