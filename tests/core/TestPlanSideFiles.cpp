#include "core/PlanSideFiles.h"

#include <gtest/gtest.h>

#include "support/FakeHosts.h"

namespace orlo {
namespace {

struct SideFiles : test::FakeWorld {
    Plan plan;

    SideFiles(const char* name, const std::string& content) {
        files.files[name] = content;
        plan.FlightplanPath = "/plan/FlightPlans.txt";
        ReadPlanAircraft(plan, services);
        ReadPlanAirports(plan, services);
    }
};

TEST(PlanSideFiles, AircraftLinesReadAsTheFormSays) {
    const struct {
        const char* line;
        std::vector<PlanAircraft> expected;
        std::int32_t highest;
    } cases[] = {
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
    for (const auto& c : cases) {
        const SideFiles world("/plan/AIRCRAFT.TXT", c.line);
        EXPECT_EQ(world.plan.PlanAircrafts, c.expected) << c.line;
        EXPECT_EQ(world.plan.MaxACNumber, c.highest) << c.line;
    }
}

TEST(PlanSideFiles, ACodeThatStandsTwiceKeepsBothLinesAndItsFirstPlace) {
    const SideFiles world("/plan/airports.txt",
                          "EDDF, N50* 1.5' ,E8* 2.5',364\r\neddf,N1* 1.0',E1* 1.0',1\r\nA,B,C\r\n");
    const Plan& plan = world.plan;
    ASSERT_EQ(plan.PlanAirportCount(), 2);
    EXPECT_EQ(plan.PlanAirports[0], (PlanAirport{"EDDF", "N50* 1.5'", "E8* 2.5'", "364"}));
    EXPECT_EQ(plan.PlanAirportIndex.Count(), 1u);
    EXPECT_EQ(*plan.PlanAirportIndex.Find("EddF"), 0);
    // The other file is missing, which is told.
    ASSERT_EQ(world.messages.shown.size(), 1u);
    EXPECT_EQ(world.messages.shown[0].second,
              "File 'AIRCRAFT.TXT' not found.  Please copy the file to the Flightplan folder.");
}

TEST(PlanSideFiles, AWriteTakesTheFileAsTheDiskSpellsIt) {
    const std::string before = "; old\r\nAC#1,450,\"A\"\r\n";
    SideFiles world("/plan/AIRCRAFT.TXT", before);
    world.plan.PlanAircrafts[0].CruiseSpeed = "300";
    EXPECT_TRUE(WritePlanAircraft(world.plan, world.files));
    EXPECT_EQ(world.files.files["/plan/AIRCRAFT.TXT"], "AC#1,300,\"A\"\r\n");
}

}  // namespace
}  // namespace orlo
