#include "core/FlightplanFile.h"

#include <gtest/gtest.h>

#include "support/FakeHosts.h"

namespace orlo {
namespace {

constexpr std::string_view kPlanPath = "/plan/FlightPlans.txt";
constexpr std::string_view kBackupPath = "/plan/FlightPlans.txt.orlo.bak";
constexpr std::string_view kRemovedPath = "/plan/Removed Flights.txt";

Plan ReadText(test::FakeWorld& world, std::string text) {
    world.files.files[std::string(kPlanPath)] = std::move(text);
    Plan plan;
    plan.FlightplanPath = kPlanPath;
    ReadFlightplan(plan, world.services);
    return plan;
}

std::string& FileOf(test::FakeWorld& world, std::string_view path) {
    return world.files.files[std::string(path)];
}

const std::string kTwoLegs =
    "AC#1,N1,50%,24Hr,IFR,10:00:00,@11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,340,R,0001,EDDM";

TEST(FlightplanFile, AReadAndAWriteChangeALineAsTheFormSays) {
    struct Case {
        const char* name;
        std::string line;
        std::string written;  // empty: the line is gone
    };
    const std::string legs = ",10:00:00,11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,340,R,0001,EDDM";
    const std::vector<Case> cases = {
        {"a clean line stays", kTwoLegs, kTwoLegs},
        {"case stays", "ac#1,n1,5%,week,ifr,0/1,0/2,35,f,1,eddf,0/3,0/4,34,r,1,eddm",
         "ac#1,n1,5%,week,ifr,0/1,0/2,35,f,1,eddf,0/3,0/4,34,r,1,eddm"},
        {"blanks around fields go",
         "  AC#1 , N 1 ,50% ,24Hr, IFR ,10:00:00 , "
         "11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,340,R,0001,EDDM ",
         "AC#1,N 1,50%,24Hr,IFR" + legs},
        {"a blank behind the mark of a fixed arrival stays",
         "AC#1,N1,5%,24Hr,IFR,1,@ 2,350,F,1,A,3,4,350,F,1,B",
         "AC#1,N1,5%,24Hr,IFR,1,@ 2,350,F,1,A,3,4,350,F,1,B"},
        {"activity 100 is never kept", "AC#1,N1,100%,24Hr,IFR" + legs, "AC#1,N1,99%,24Hr,IFR" + legs},
        {"100 without its sign reads as 10", "AC#1,N1,100,24Hr,IFR" + legs, "AC#1,N1,100,24Hr,IFR" + legs},
        {"an unreadable activity", "AC#1,N1,x%,24Hr,IFR" + legs, "AC#1,N1,99%,24Hr,IFR" + legs},
        {"an empty activity", "AC#1,N1,,24Hr,IFR" + legs, "AC#1,N1,99%,24Hr,IFR" + legs},
        {"levels in feet and long flight numbers", "AC#1,N1,5%,24Hr,IFR,1,2,3500,F,12345,A,3,4,10000,F,1,B",
         "AC#1,N1,5%,24Hr,IFR,1,2,035,F,1234,A,3,4,100,F,1,B"},
        {"16 fields are too few", "AC#1,N1,5%,24Hr,IFR,1,2,350,F,1,A,3,4,350,F,1", ""},
        {"what follows the last complete leg goes", kTwoLegs + ",14:00:00,15:00:00,330", kTwoLegs},
        {"a comment behind the line", kTwoLegs + "; remark, with, commas", kTwoLegs},
        {"a comment by slashes", kTwoLegs + "// remark", kTwoLegs},
        {"a comment in the tail number", "AC#1,N;1" + legs, ""},
        {"slashes of week times are no comment",
         "AC#1,N1,5%,WEEK,IFR,0/10:00,1/11:00,350,F,1,A,3/1,4/1,350,F,1,B",
         "AC#1,N1,5%,WEEK,IFR,0/10:00,1/11:00,350,F,1,A,3/1,4/1,350,F,1,B"},
        {"comment lines", ";" + kTwoLegs, ""},
        {"comment lines by slashes", "//" + kTwoLegs, ""},
        {"bytes above 127", "AC#1,N\xC4\xFF\x81,5%,24Hr,IFR" + legs, "AC#1,N\xC4\xFF\x81,5%,24Hr,IFR" + legs},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        test::FakeWorld world;
        const Plan plan = ReadText(world, c.line);
        EXPECT_EQ(plan.FlightCount(), c.written.empty() ? 0 : 1);
        EXPECT_TRUE(WriteFlightplan(world.files, std::string(kPlanPath), plan.Flights, false).Complete());
        EXPECT_EQ(FileOf(world, kPlanPath), c.written.empty() ? "" : c.written + "\r\n");
    }
}

TEST(FlightplanFile, TheCutOfACommentIsFoundWhereverItStandsInTheLine) {
    for (std::size_t padding = 0; padding < 70; ++padding) {
        const std::string tail(padding, 'N');
        const std::string line = "AC#1," + tail + kTwoLegs.substr(7);
        for (const char* comment : {";", "//", "/x//,", "///"}) {
            FlightList flights;
            ASSERT_TRUE(AppendFlightplanLine(line + comment + ",1,2,3,4,5,6,7", flights))
                << padding << comment;
            const Flight flight = flights.Unpack(0);
            ASSERT_EQ(flight.LegCount(), 2) << padding << comment;
            ASSERT_EQ(flight.TailNumber, tail);
            ASSERT_EQ(flight.Legs[1].Destination, comment == std::string("/x//,") ? "EDDM/x" : "EDDM");
        }
    }
}

TEST(FlightplanFile, AnUnreachableFileSaysSoAndLeavesNoFlights) {
    test::FakeWorld world;
    Plan plan;
    plan.FlightplanPath = "/plan/none.txt";
    ReadFlightplan(plan, world.services);
    EXPECT_EQ(plan.FlightCount(), 0);
    ASSERT_EQ(world.messages.shown.size(), 1u);
    EXPECT_EQ(world.messages.shown[0],
              (std::pair<int, std::string>(16, "Flightplan file not found or access denied.")));
}

TEST(FlightplanFile, ProgressMovesEvery202Lines) {
    test::FakeWorld world;
    std::string text;
    for (int i = 0; i < 404; ++i) text += kTwoLegs + "\r\n";
    ReadText(world, text);
    const std::vector<std::string> expected = {"max 100", "value 0", "value 48", "value 97"};
    EXPECT_EQ(world.progress.lines, expected);
}

TEST(FlightplanFile, AllLegsOfAVeryLongLineAreKept) {
    std::string line = "AC#1,N1,50%,24Hr,IFR";
    for (int i = 0; i < 200'000; ++i) line += ",1,2,350,F,1,EDDF";
    test::FakeWorld world;
    const Plan plan = ReadText(world, line + "\r\n");
    ASSERT_EQ(plan.FlightCount(), 1);
    EXPECT_EQ(plan.Flights.At(0).LegCount, 200'000);
    WriteFlightplan(world.files, std::string(kPlanPath), plan.Flights, false);
    EXPECT_EQ(FileOf(world, kPlanPath), line + "\r\n");
}

TEST(FlightplanFile, RemovedFlightsGoToTheirOwnFileWhichASaveWithoutThemDeletes) {
    test::FakeWorld world;
    Plan plan = ReadText(world, kTwoLegs + "\r\n" + kTwoLegs + "\r\n");
    plan.Flights.SetRemoved(0, true);
    const PlanWriteResult result = WriteFlightplan(world.files, std::string(kPlanPath), plan.Flights, true);
    EXPECT_TRUE(result.Complete());
    EXPECT_EQ(result.RemovedCount, 1);
    EXPECT_EQ(FileOf(world, kPlanPath), kTwoLegs + "\r\n");
    EXPECT_EQ(FileOf(world, kRemovedPath), kTwoLegs + "\r\n");
    EXPECT_EQ(FileOf(world, kBackupPath), kTwoLegs + "\r\n" + kTwoLegs + "\r\n");

    plan.Flights.SetRemoved(0, false);
    WriteFlightplan(world.files, std::string(kPlanPath), plan.Flights, true);
    EXPECT_FALSE(world.files.FileExists(std::string(kRemovedPath)));
    EXPECT_EQ(FileOf(world, kBackupPath), kTwoLegs + "\r\n" + kTwoLegs + "\r\n") << "the first backup stays";
}

}  // namespace
}  // namespace orlo
