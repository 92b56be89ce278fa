#include <gtest/gtest.h>

#include "support/FlightEditProgram.h"

namespace orlo {
namespace {

using Editor = test::FlightEditProgram;
using enum MessageAnswer;
using Texts = std::vector<std::string>;

// Legs of "08:00:00-09:00:00 10:00:00-11:00:00", with fixed arrivals.
std::vector<Leg> LegsOf(std::string_view times) {
    std::vector<Leg> legs;
    for (const std::string_view leg : SplitText(times, ' ')) {
        const std::size_t dash = leg.find('-');
        legs.push_back(Editor::FixedLeg(leg.substr(0, dash), leg.substr(dash + 1)));
    }
    return legs;
}

// What is warned of when each warning is passed and the flight accepted.
Texts Warnings(Editor& fake, const Flight& flight) {
    const std::string result = fake.Edit(
        flight, [&] { fake.Accept(); }, std::vector(20, Yes));
    EXPECT_NE(result, "");
    for (std::string& text : fake.said) {
        constexpr std::string_view kStart = "Warning! ", kEnd = "\nContinue?";
        EXPECT_TRUE(text.starts_with(kStart) && text.ends_with(kEnd)) << text;
        text = text.substr(kStart.size(), text.size() - kStart.size() - kEnd.size());
    }
    return fake.said;
}

TEST(FlightEditAccept, StandsAndTotalsWarnJustBeyondTheirLimits) {
    constexpr std::int32_t kOff = kNoTurnAroundLimit;
    const std::string early = "Departure is earlier than arrival for leg number 2.";
    const std::string shortLeg = "Stand time is less than 30 minutes for leg number 2.";
    const std::string shortEnd = "Stand time is less than 30 minutes for end of flight.";
    const std::string longLeg = "Stand time is greater than 1 hours for leg number 2.";
    const std::string longEnd = "Stand time is greater than 1 hours for end of flight";
    const std::string total = "Total flight time exceeds maximum allowed time of ";
    const std::string week = total + "one week.";
    struct Case {
        std::string_view period, times;
        std::int32_t minimum;  // minutes
        std::int32_t maximum;  // hours
        Texts warnings;
    };
    const std::vector<Case> cases = {
        {"24Hr", "08:00:00-09:00:00 09:30:00-10:30:00", 30, kOff, {}},
        {"24Hr", "08:00:00-09:00:00 09:29:59-10:30:00", 30, kOff, {shortLeg}},
        {"24Hr", "08:00:00-09:00:00 10:00:00-18:00:00 19:00:00-07:00:00", kOff, 1, {}},
        {"24Hr", "08:00:00-09:00:00 10:00:01-18:00:00 19:00:00-07:00:00", kOff, 1, {longLeg}},
        {"24Hr", "22:00:00-23:00:00 00:00:00-01:00:00", 60, 1, {longEnd}},
        {"24Hr", "08:00:00-09:00:00 09:30:00-07:45:00", 30, kOff, {shortEnd}},
        {"2Hr", "08:00:00-08:30:00 09:00:00-09:59:59", kOff, kOff, {}},
        {"2Hr", "08:00:00-08:30:00 09:00:00-10:00:00", kOff, kOff, {total + "2 hours."}},
        {"3Hr", "08:00:00-08:30:00 09:00:00-09:30:00", kOff, kOff, {total + "0 hours."}},
        {"24Hr", "08:00:00-bad 09:00:00-10:00:00", 30, 1, {longEnd}},
        {"WEEK", "1/08:00:00-1/09:00:00 1/09:30:00-1/10:30:00", 30, kOff, {}},
        {"WEEK", "1/08:00:00-1/09:00:00 1/09:29:59-1/10:30:00", 30, kOff, {shortLeg}},
        {"week", "1/08:00:00-1/09:00:00 1/08:59:59-1/10:30:00", 30, kOff, {early}},
        {"WEEK", "1/08:00:00-1/09:00:00 1/11:00:00-1/12:00:00", kOff, 1, {longLeg, longEnd + "."}},
        {"WEEK", "1/08:00:00-4/09:00:00 4/10:00:00-0/08:00:00 0/09:00:00-1/07:45:00", 30, kOff, {shortEnd}},
        {"WEEK", "1/08:00:00-4/09:00:00 4/08:00:00-1/07:00:00", kOff, kOff, {early, week}},
        {"WEEK", "1/08:00:00-4/09:00:00 4/10:00:00-0/08:00:00 0/09:00:00-1/08:00:00", kOff, kOff, {week}},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.times);
        Editor fake;
        fake.session.switches.CheckAircraftRange = fake.session.switches.CheckFlightLevels = false;
        fake.session.switches.TATime = row.minimum;
        fake.session.switches.MaxTATime = row.maximum;
        const Flight flight = Editor::FlightOf(row.period, LegsOf(row.times));
        EXPECT_EQ(Warnings(fake, flight), row.warnings);
        fake.session.switches.CheckFlightTimes = false;
        EXPECT_EQ(Warnings(fake, flight), Texts{});
    }
}

TEST(FlightEditAccept, RangesAndLevelsOfAnInstalledAircraftAreCheckedLegByLeg) {
    struct Case {
        std::int32_t minRange, maxRange;
        std::string_view levels;  // of legs 1 (eastbound) and 2
        std::string_view aircraft;
        Texts warnings;
    };
    const auto range = [](int leg, std::string_view limits) {
        return Concat("Aircraft range limits reached for leg ", leg, " (", limits, ").");
    };
    const std::string east = "Flight Level might be incorrect for leg 1. Suggestion: FL050-250 +020";
    const std::string west = "Flight Level might be incorrect for leg 2. Suggestion: FL060-260 +020";
    const std::vector<Case> cases = {
        {300, 300, "090 080", "AC#1", {}},
        {301, 500, "090 080", "AC#1", {range(1, "301nm - 500nm"), range(2, "301nm - 500nm")}},
        {0, 299, "090 090", "AC#1", {range(1, "0nm - 299nm"), range(2, "0nm - 299nm"), west}},
        {-1, -1, "high 080", "AC#1", {range(1, "-1nm - -1nm"), east, range(2, "-1nm - -1nm")}},
        {301, 500, "100 100", "AC#2", {}},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.levels);
        Editor fake;
        fake.session.fleet.FSAircrafts[0].MinRange = row.minRange;
        fake.session.fleet.FSAircrafts[0].MaxRange = row.maxRange;
        Flight flight = Editor::FlightOf("24Hr", LegsOf("08:00:00-09:00:00 10:00:00-11:00:00"));
        flight.Legs[1].Destination = "AAAA";
        flight.Legs[0].FlightLevel = BeforeFirst(row.levels, " ");
        flight.Legs[1].FlightLevel = row.levels.substr(row.levels.find(' ') + 1);
        flight.ACNumber = row.aircraft;
        EXPECT_EQ(Warnings(fake, flight), row.warnings);

        fake.session.switches.CheckAircraftRange = fake.session.switches.CheckFlightLevels = false;
        EXPECT_EQ(Warnings(fake, flight), Texts{});
        fake.session.switches.CheckAircraftRange = fake.session.switches.CheckFlightLevels = true;
        flight.Legs[0].Destination = "ZZZZ";
        EXPECT_EQ(Warnings(fake, flight), Texts{}) << "a leg to an unknown airport passes unseen";
    }
}

TEST(FlightEditAccept, ANoSelectsTheLegOrThePeriodAndStoresNothing) {
    struct Case {
        std::string_view period, times;
        std::size_t passed;  // warnings before the No
        std::int32_t selected;
        bool atPeriod;
    };
    // Two stands of half an hour, and what follows them.
    const std::vector<Case> cases = {
        {"24Hr", "08:00:00-09:00:00 09:30:00-10:00:00 10:30:00-11:00:00", 0, 1, false},
        {"24Hr", "08:00:00-09:00:00 09:30:00-10:00:00 10:30:00-11:00:00", 1, 2, false},
        {"2Hr", "08:00:00-09:00:00 09:30:00-10:00:00 10:30:00-11:00:00", 2, 0, true},
        {"24Hr", "08:00:00-09:00:00 09:30:00-10:00:00 10:30:00-07:30:00", 2, 2, false},
        {"WEEK", "1/08:00:00-4/09:00:00 4/09:30:00-0/08:00:00 0/08:30:00-1/07:30:00", 2, 2, false},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(Concat(row.times, " after ", row.passed));
        Editor fake;
        fake.session.switches.CheckAircraftRange = fake.session.switches.CheckFlightLevels = false;
        fake.session.switches.TATime = 60;
        const Flight flight = Editor::FlightOf(row.period, LegsOf(row.times));
        const std::string result = fake.Edit(
            flight,
            [&] {
                fake.editor.lvLegs.ensureVisibleRequest = false;
                fake.Press(fake.editor.ckFlightLevel);
                fake.Accept();
                EXPECT_FALSE(fake.editor.closeRequest);
                EXPECT_EQ(fake.editor.lvLegs.current, row.selected);
                EXPECT_EQ(fake.editor.lvLegs.ensureVisibleRequest, !row.atPeriod);
                EXPECT_EQ(fake.editor.focus == &fake.editor.cmPeriod, row.atPeriod);
                const Leg& leg = flight.Legs[static_cast<std::size_t>(row.selected)];
                EXPECT_TRUE(EndsWithNoCase(leg.DepartTime, fake.editor.txtTime.text));
                EXPECT_FALSE(fake.session.switches.CheckFlightLevels) << "not stored before the end";
            },
            std::vector(row.passed, Yes));
        EXPECT_EQ(result, "");
        EXPECT_EQ(fake.edited, flight);
        ASSERT_EQ(fake.world.messages.shown.size(), row.passed + 1);
        EXPECT_EQ(fake.world.messages.shown[0].first, 308);
    }
}

}  // namespace
}  // namespace orlo
