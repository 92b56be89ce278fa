#include "core/FlightplanFile.h"

#include <gtest/gtest.h>

#include "support/FakeHosts.h"

namespace orlo {
namespace {

const std::string kPlanPath = "/plan/FlightPlans.txt";
const std::string kRemovedPath = "/plan/Removed Flights.txt";

Plan ReadText(test::FakeWorld& world, std::string text) {
    world.files.files[kPlanPath] = std::move(text);
    Plan plan;
    plan.FlightplanPath = kPlanPath;
    ReadFlightplan(plan, world.services);
    return plan;
}

const std::string kTwoLegs =
    "AC#1,N1,50%,24Hr,IFR,10:00:00,@11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,340,R,0001,EDDM";

TEST(FlightplanFile, AReadAndAWriteChangeALineAsTheFormSays) {
    const std::string legs = ",10:00:00,11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,340,R,0001,EDDM";
    const std::string same = "(as it was)";
    const struct {
        const char* name;
        std::string line;
        std::string written;  // empty: the line is gone
    } cases[] = {
        {"a clean line stays", kTwoLegs, same},
        {"case stays", "ac#1,n1,5%,week,ifr,0/1,0/2,35,f,1,eddf,0/3,0/4,34,r,1,eddm", same},
        {"blanks around fields go",
         "  AC#1 , N 1 ,50% ,24Hr, IFR ,10:00:00 , "
         "11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,340,R,0001,EDDM ",
         "AC#1,N 1,50%,24Hr,IFR" + legs},
        {"a blank behind the mark of a fixed arrival stays",
         "AC#1,N1,5%,24Hr,IFR,1,@ 2,350,F,1,A,3,4,350,F,1,B", same},
        {"activity 100 is never kept", "AC#1,N1,100%,24Hr,IFR" + legs, "AC#1,N1,99%,24Hr,IFR" + legs},
        {"100 without its sign reads as 10", "AC#1,N1,100,24Hr,IFR" + legs, same},
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
         "AC#1,N1,5%,WEEK,IFR,0/10:00,1/11:00,350,F,1,A,3/1,4/1,350,F,1,B", same},
        {"comment lines", ";" + kTwoLegs, ""},
        {"comment lines by slashes", "//" + kTwoLegs, ""},
        {"bytes above 127", "AC#1,N\xC4\xFF\x81,5%,24Hr,IFR" + legs, same},
    };
    for (const auto& c : cases) {
        test::FakeWorld world;
        const Plan plan = ReadText(world, c.line);
        EXPECT_EQ(plan.FlightCount(), c.written.empty() ? 0 : 1) << c.name;
        EXPECT_TRUE(WriteFlightplan(world.files, kPlanPath, plan.Flights).Complete()) << c.name;
        const std::string& written = c.written == same ? c.line : c.written;
        EXPECT_EQ(world.files.files[kPlanPath], written.empty() ? "" : written + "\r\n") << c.name;
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

TEST(FlightplanFile, ProgressMovesEvery202LinesAndAnUnreachableFileLeavesNoFlights) {
    test::FakeWorld world;
    std::string text;
    for (int i = 0; i < 404; ++i) text += kTwoLegs + "\r\n";
    Plan plan = ReadText(world, text);
    EXPECT_EQ(world.progress.lines, (std::vector<std::string>{"max 100", "value 0", "value 48", "value 97"}));

    world.files.files.clear();
    ReadFlightplan(plan, world.services);
    EXPECT_EQ(plan.FlightCount(), 0);
    EXPECT_EQ(world.messages.shown.at(0),
              std::pair(int{kMarkCritical}, std::string("Flightplan file not found or access denied.")));
}

TEST(FlightplanFile, AllLegsOfAVeryLongLineAreKept) {
    std::string line = "AC#1,N1,50%,24Hr,IFR";
    for (int i = 0; i < 200'000; ++i) line += ",1,2,350,F,1,EDDF";
    test::FakeWorld world;
    const Plan plan = ReadText(world, line + "\r\n");
    ASSERT_EQ(plan.FlightCount(), 1);
    EXPECT_EQ(plan.Flights.At(0).LegCount, 200'000);
    WriteFlightplan(world.files, kPlanPath, plan.Flights);
    EXPECT_EQ(world.files.files[kPlanPath], line + "\r\n");
}

TEST(FlightplanFile, RemovedFlightsGoToTheirOwnFileWhichASaveWithoutThemDeletes) {
    test::FakeWorld world;
    auto& files = world.files.files;
    const std::string line = kTwoLegs + "\r\n";
    Plan plan = ReadText(world, line + line);
    plan.Flights.SetRemoved(0, true);
    const PlanWriteResult result = WriteFlightplan(world.files, kPlanPath, plan.Flights);
    EXPECT_TRUE(result.Complete());
    EXPECT_EQ(result.RemovedCount, 1);
    EXPECT_EQ(files[kPlanPath], line);
    EXPECT_EQ(files[kRemovedPath], line);

    plan.Flights.SetRemoved(0, false);
    WriteFlightplan(world.files, kPlanPath, plan.Flights);
    EXPECT_FALSE(files.contains(kRemovedPath));
}

}  // namespace
}  // namespace orlo
