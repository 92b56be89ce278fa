#include "core/PlanSideFiles.h"

#include <gtest/gtest.h>

#include "support/FakeHosts.h"

namespace orlo {
namespace {

Plan PlanBeside(test::FakeWorld& world, const std::string& aircraft, const std::string& airports) {
    world.files.files["/plan/AIRCRAFT.TXT"] = aircraft;
    world.files.files["/plan/airports.txt"] = airports;
    Plan plan;
    plan.FlightplanPath = "/plan/FlightPlans.txt";
    return plan;
}

TEST(PlanSideFiles, AircraftLinesReadAsTheFormSays) {
    struct Case {
        const char* line;
        std::vector<PlanAircraft> expected;
        std::int32_t highest;
    };
    const std::vector<Case> cases = {
        {"AC#7,450,\"Boeing 737\"", {{"AC#7", "Boeing 737", "450", 0}}, 7},
        {"  AC#12 , 450 ,\" Boeing 737 \"", {{"AC#12", "Boeing 737", "450", 0}}, 12},
        {"AC#1,450, \"Boeing 737\"", {{"AC#1", "\"Boeing 737", "450", 0}}, 1},
        {"AC#1,450,\"Boeing, 737\"", {}, 0},
        {"AC#1,450,\"Boe;ing\"", {{"AC#1", "Boe", "450", 0}}, 1},
        {"AC#x,450,\"A\"", {{"AC#x", "A", "450", 0}}, 0},
        {"   ; comment, with, fields", {}, 0},
        {"  // AC#1,450,\"A\"", {}, 0},
        {"AC#1,450", {}, 0},
        {"AC#1,450,\"\xC4\"", {{"AC#1", "\xC4", "450", 0}}, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        test::FakeWorld world;
        Plan plan = PlanBeside(world, c.line, "");
        ReadPlanAircraft(plan, world.services);
        EXPECT_EQ(plan.PlanAircrafts, c.expected);
        EXPECT_EQ(plan.MaxACNumber, c.highest);
    }
}

TEST(PlanSideFiles, ACodeThatStandsTwiceKeepsBothLinesAndItsFirstPlace) {
    test::FakeWorld world;
    Plan plan =
        PlanBeside(world, "", "EDDF, N50* 1.5' ,E8* 2.5',364\r\neddf,N1* 1.0',E1* 1.0',1\r\nA,B,C\r\n");
    ReadPlanAirports(plan, world.services);
    ASSERT_EQ(plan.PlanAirportCount(), 2);
    EXPECT_EQ(plan.PlanAirports[0], (PlanAirport{"EDDF", "N50* 1.5'", "E8* 2.5'", "364"}));
    EXPECT_EQ(plan.PlanAirportIndex.Count(), 1u);
    EXPECT_EQ(*plan.PlanAirportIndex.Find("EddF"), 0);
}

TEST(PlanSideFiles, AMissingFileIsTold) {
    test::FakeWorld world;
    Plan plan;
    ReadPlanAircraft(plan, world.services);
    ASSERT_EQ(world.messages.shown.size(), 1u);
    EXPECT_EQ(world.messages.shown[0].second,
              "File 'AIRCRAFT.TXT' not found.  Please copy the file to the Flightplan folder.");
}

TEST(PlanSideFiles, AWriteBacksTheOldFileUpOnceAndLeavesItWholeWhenItFails) {
    test::FakeWorld world;
    const std::string before = "; old\r\nAC#1,450,\"A\"\r\n";
    Plan plan = PlanBeside(world, before, "");
    ReadPlanAircraft(plan, world.services);
    plan.PlanAircrafts[0].CruiseSpeed = "300";

    world.files.failCommit = true;
    EXPECT_FALSE(WritePlanAircraft(plan, world.files, true));
    EXPECT_EQ(world.files.files["/plan/AIRCRAFT.TXT"], before);

    world.files.failCommit = false;
    EXPECT_TRUE(WritePlanAircraft(plan, world.files, true));
    EXPECT_EQ(world.files.files["/plan/AIRCRAFT.TXT"], "AC#1,300,\"A\"\r\n");
    EXPECT_EQ(world.files.files["/plan/Aircraft.txt.orlo.bak"], before);
}

}  // namespace
}  // namespace orlo
