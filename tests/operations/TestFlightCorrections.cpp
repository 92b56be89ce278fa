// The check of flight times and the tools that correct all flights of a plan.

#include <gtest/gtest.h>

#include <algorithm>

#include "core/FlightTimes.h"
#include "operations/CheckFlightTimes.h"
#include "support/CaseTable.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::int32_t kOff = kNoTurnAroundLimit;

struct CorrectionWorld : test::FakeProgram {
    CorrectionWorld() { form.mnuToolsCheckFL.enabled = form.mnuToolsCheckFT.enabled = true; }

    std::string Line(std::int32_t index) const { return session.plan.Flights.Line(index); }
    std::string Check(std::int32_t index) const {
        const FlightTimesCheck check = CheckFlightTimes(session.plan.Flights.At(index),
                                                        session.switches.TATime, session.switches.MaxTATime);
        EXPECT_EQ(check.Right, check.Text.empty());
        return check.Text;
    }
    void SetLimits(std::int32_t minimum, std::int32_t maximum) {
        session.switches.TATime = minimum;
        session.switches.MaxTATime = maximum;
    }
};

std::string Whole(std::string_view time) {
    return Concat(time, std::count(time.begin(), time.end(), ':') == 1 ? ":00" : "");
}

// A flight of legs whose times stand in turn, departure and arrival, seconds of 0 left out.
std::string LineOf(std::string_view period, std::string_view times) {
    std::string line = Concat("AC#1,N1,50%,", period, ",IFR");
    const std::vector<std::string_view> texts = SplitText(times, ' ');
    for (std::size_t i = 0; i + 1 < texts.size(); i += 2) {
        line += Concat(",", Whole(texts[i]), ",", Whole(texts[i + 1]), ",350,F,1,EDDF");
    }
    return line;
}

TEST(FlightCorrections, TimesAgreeWithTheTableOfCases) {
    const auto rows = test::ReadCaseTable("flight-times.csv");
    if (!rows) GTEST_SKIP() << "no table of flight times beside the checkout";
    for (const test::CaseRow& row : *rows) {
        CorrectionWorld world;
        world.SetLimits(std::stoi(row[0]), std::stoi(row[1]));
        world.AddFlight(row[2]);
        EXPECT_EQ(world.Check(0), row[3]) << testing::PrintToString(row);
        world.Press(world.form.mnuToolsCheckFT);
        EXPECT_EQ(world.Line(0), row[4]) << testing::PrintToString(row);
    }
    EXPECT_GE(rows->size(), 100u);
}

TEST(FlightCorrections, TimesAreCheckedAndCorrectedAtTheirLimits) {
    constexpr const char* kMin = "min. Turn-Around";
    constexpr const char* kMax = "max. Turn-Around";
    struct Case {
        std::int32_t minimum, maximum;
        std::string period, times, fault, correctedPeriod;
        std::string correctedTimes;  // empty: as they were
    };
    for (const Case& c : std::initializer_list<Case>{
             // The correction keeps a minute more than the check asks for.
             {30, kOff, "24Hr", "10:00 11:00 11:29:59 12:00", kMin, "4Hr", "10:00 11:00 11:32 12:02:01"},
             {30, kOff, "4Hr", "10:00 11:00 11:30 12:00", "", "4Hr", "10:00 11:00 11:32 12:02"},
             {30, kOff, "4Hr", "10:00 11:00 11:30:59 12:00", "", "4Hr", "10:00 11:00 11:32 12:01:01"},
             {30, kOff, "4Hr", "10:00 11:00 11:31 12:00", "", "4Hr", ""},
             {kOff, 1, "4Hr", "10:00 11:00 12:00:01 13:00", kMax, "4Hr", "10:00 11:00 11:58 12:57:59"},
             {kOff, 1, "4Hr", "10:00 11:00 12:00 13:00", "", "4Hr", "10:00 11:00 11:58 12:58"},
             {kOff, 1, "4Hr", "10:00 11:00 11:59:01 13:00", "", "4Hr", "10:00 11:00 11:58 12:58:59"},
             {kOff, 1, "4Hr", "10:00 11:00 11:59 13:00", "", "4Hr", ""},
             // A moved leg is what the next one is measured against.
             {30, kOff, "24Hr", "10:00 11:00 11:00 12:00 12:40 13:00", kMin, "4Hr",
              "10:00 11:00 11:32 12:32 13:04 13:24"},
             // Without limits the order of week times alone counts.
             {kOff, kOff, "WEEK", "1/10:00 1/11:00 1/10:30 1/11:30", "Depart earlier than arrival", "WEEK",
              "1/10:00 1/11:00 1/11:47 1/12:47"},
             {kOff, kOff, "24Hr", "10:00 11:00 11:00 12:00", "", "4Hr", ""},
             // The edges of the periods; 12 hours leave no room for the minimum.
             {30, kOff, "2Hr", "10:00 10:29 11:00 11:29:59", "", "2Hr", ""},
             {30, kOff, "2Hr", "10:00 10:29 11:00 11:30", "", "4Hr", ""},
             {30, kOff, "12Hr", "00:00 05:00 06:00 11:45", kMin, "12Hr", ""},
             {30, kOff, "12Hr", "00:00 05:00 06:00 12:00", "Total flight time | min. Turn-Around", "24Hr",
              ""},
             // Only where no period holds the round are all turn-arounds tightened, and what still doesn't
             // fit stays with the longest.
             {30, kOff, "24Hr", "00:00 11:00 12:50 23:50", kMin, "24Hr", "00:00 11:00 11:32 22:32"},
             {30, kOff, "24Hr", "00:00 11:00 12:29:59 23:29:59", "", "24Hr", ""},
             {60, 1, "24Hr", "00:00 11:30 13:00 00:30", "Total flight time | max. Turn-Around", "24Hr",
              "00:00 11:30 12:28 23:58"},
             // Over the end of the week, both ways.
             {30, kOff, "WEEK", "6/22:00 6/23:50 6/23:55 0/01:00", kMin, "WEEK",
              "6/22:00 6/23:50 0/00:22 0/01:27"},
             {kOff, 1, "WEEK", "6/22:00 6/23:00 0/01:00 0/02:00", kMax, "WEEK",
              "6/22:00 6/23:00 6/23:58 0/00:58"},
             // Periods that are none.
             {kOff, kOff, "week", "1/10:00 1/11:00 1/12:00 1/13:00", "", "week", ""},
             {kOff, kOff, "3Hr", "10:00 10:30 11:00 11:30", "", "2Hr", ""},
             {kOff, kOff, "Daily", "10:00 10:30 11:00 11:30", "Total flight time", "2Hr", ""},
             // Of what can't be read nothing is measured and nothing moves.
             {30, kOff, "24Hr", "10:00 later 10:00 11:00", "", "2Hr", ""},
             {30, kOff, "24Hr", "10:00 11:00 11:00 ? 11:50 12:50", kMin, "4Hr", ""},
             {30, kOff, "24Hr", "1/10:00 11:00 11:00 12:00", kMin, "4Hr", "1/10:00 11:00 11:32 12:32"},
             {30, kOff, "WEEK", "1/10:00 11:00 1/11:00 1/12:00 1/12:00 13:00", kMin, "WEEK", ""},
             // Marked arrivals move like others, and the mark stays.
             {30, kOff, "24Hr", "10:00 @11:00 11:00 @12:00", kMin, "4Hr", "10:00 @11:00 11:32 @12:32"},
         }) {
        CorrectionWorld world;
        world.SetLimits(c.minimum, c.maximum);
        world.AddFlight(LineOf(c.period, c.times));
        EXPECT_EQ(world.Check(0), c.fault) << c.times;
        world.Press(world.form.mnuToolsCheckFT);
        const std::string& corrected = c.correctedTimes.empty() ? c.times : c.correctedTimes;
        EXPECT_EQ(world.Line(0), LineOf(c.correctedPeriod, corrected)) << c.times;
    }
}

// A round with one leg has no turn-around but the closing one.
TEST(FlightCorrections, ARoundOfOneLegIsCheckedToo) {
    const auto check = [](std::string period, std::vector<Leg> legs, std::int32_t minimum) {
        FlightList flights;
        flights.Append({"AC#1", "N1", "50%", std::move(period), "IFR", std::move(legs), false});
        return CheckFlightTimes(flights.At(0), minimum, 24).Text;
    };
    const Leg daily{"10:00:00", "11:30:00", false, "350", "F", "1", "EDDF"};
    const Leg weekly{"6/22:00:00", "6/21:00:00", false, "350", "F", "1", "EDDF"};
    EXPECT_EQ(check("2Hr", {}, 30), "");
    EXPECT_EQ(check("2Hr", {daily}, 30), "");
    EXPECT_EQ(check("2Hr", {daily}, 45), "min. Turn-Around");
    EXPECT_EQ(check("WEEK", {weekly}, 30), "max. Turn-Around");
}

// A walk over all legs for each leg would take minutes.
TEST(FlightCorrections, AWeekFlightOfManyLegsTakesLinearTime) {
    CorrectionWorld world;
    world.SetLimits(30, 1);
    std::string times = "3/10:00:00 3/11:00:00";
    for (int i = 1; i < 100000; ++i) times += " 1/00:00:00 2/03:00:00 3/04:00:00 0/02:00:00";
    world.AddFlight(LineOf("WEEK", times));
    EXPECT_NE(world.Check(0), "");
    world.Press(world.form.mnuToolsCheckFT);
    EXPECT_EQ(world.session.plan.Flights.At(0).LegCount, 199999);
    EXPECT_NE(world.Line(0), LineOf("WEEK", times));
}

TEST(FlightCorrections, LevelsAreDrawnForKnownAircraftFromTheSecondLegOn) {
    CorrectionWorld world;
    world.session.rules.FlightLevelRules = {
        {0, 9999, 0, 179, 250, 410, 20}, {0, 9999, 180, 359, 260, 400, 20}, {-1, 9999, -1, -1, 50, 90, 40}};
    world.AddPlanAirport("EAST", "N50* 0.00'", "E10* 0.00'");
    world.AddPlanAirport("WEST", "N50* 0.00'", "E5* 0.00'");
    world.session.plan.PlanAircrafts = {
        {"AC#1", "Jet One", "450", 0}, {"AC#3", "Jet Three", "450", 0}, {"AC#2", "Not installed", "450", 0}};
    world.AddInstalled("JET ONE");
    FSAircraft& bound = world.AddInstalled("JET THREE");
    bound.MinFL = 300;
    bound.MaxFL = 310;
    const std::string rest = ",IFR,08:00:00,09:00:00,100,F,1,WEST,10:00:00,@11:00:00,100,F,2,";
    for (const char* number : {"ac#1", "AC#2", "AC#3", "AC#1", "AC#1"}) {
        world.AddFlight(Concat(number, ",N-1,50%,24Hr", rest, "EAST"));
    }
    world.session.plan.Flights.SetRemoved(3, true);
    Flight astray = world.session.plan.Flights.Unpack(4);
    astray.Legs[0].Destination = astray.Legs[1].Destination = "NONE";
    world.session.plan.Flights.Replace(4, astray);
    world.world.random.draws = {0, 0.99999};
    ASSERT_TRUE(world.Press(world.form.mnuToolsCheckFL));

    std::vector<std::string> levels;
    for (std::int32_t i = 0; i < world.session.plan.FlightCount(); ++i) {
        const Flight flight = world.session.plan.Flights.Unpack(i);
        levels.push_back(Concat(flight.Legs[0].FlightLevel, " ", flight.Legs[1].FlightLevel));
        EXPECT_TRUE(flight.Legs[1].FixedETA);
        EXPECT_EQ(flight.Legs[0].ETA, "09:00:00");
        EXPECT_EQ(flight.Removed, i == 3);
    }
    // Eastbound on the second leg, with the first draw. One code twice has the course -1.
    const std::vector<std::string> expected = {"400 250", "100 100", "300 310", "400 250", "090 050"};
    EXPECT_EQ(levels, expected);
    EXPECT_EQ(world.world.random.seedings, 0);
}

TEST(FlightCorrections, AToolIsOneUndoStepAndResetsTheViews) {
    CorrectionWorld world;
    world.AddFlight("AC#1,N-1,50%,24Hr,IFR,08:00:00,09:00:00,350,F,1,EDDM,09:00:00,11:00:00,350,F,2,EDDF");
    const std::string line = world.Line(0);
    world.session.search.SearchResults = world.session.plan.Flights;
    world.form.cmdTTSave.enabled = world.form.cmdExport.enabled = true;
    ASSERT_TRUE(world.Press(world.form.mnuToolsCheckFT));
    EXPECT_NE(world.Line(0), line);
    EXPECT_TRUE(world.session.search.SearchResults.Empty());
    EXPECT_FALSE(world.form.cmdTTSave.enabled || world.form.cmdExport.enabled);
    EXPECT_TRUE(world.session.plan.PlanModified && world.form.mnuFileSave.enabled && world.form.enabled);
    EXPECT_TRUE(world.world.progress.lines.empty());
    ASSERT_TRUE(world.Press(world.form.mnuToolsUndo));
    EXPECT_EQ(world.Line(0), line);
}

}  // namespace
}  // namespace orlo
