#include "projects/PlanMerger.h"

#include <gtest/gtest.h>

#include "core/Text.h"
#include "support/MemoryFileSystem.h"

namespace orlo {
namespace {

struct MergedPlans {
    std::string aircraft;
    std::string flights;
};

struct PlanTexts {
    std::string_view aircraft;
    std::string_view flights;
};

MergedPlans Merge(std::initializer_list<PlanTexts> plans) {
    test::MemoryFileSystem files;
    LineFile aircraft;
    LineFile flights;
    aircraft.Open(files, "/out/Aircraft.txt");
    flights.Open(files, "/out/FlightPlans.txt");
    PlanMerger merger(files, aircraft, flights);
    for (const PlanTexts& plan : plans) {
        files.files["/in/A"] = plan.aircraft;
        files.files["/in/F"] = plan.flights;
        merger.BeginPlan();
        EXPECT_TRUE(merger.AddAircraft("/in/A"));
        EXPECT_TRUE(merger.AddFlights("/in/F"));
    }
    EXPECT_FALSE(merger.AddFlights("/in/none"));
    EXPECT_TRUE(aircraft.Close());
    EXPECT_TRUE(flights.Close());
    return {ReplaceAll(files.files["/out/Aircraft.txt"], "\r\n", "\n"),
            ReplaceAll(files.files["/out/FlightPlans.txt"], "\r\n", "\n")};
}

TEST(PlanMerger, SharesTitlesAndGivesTakenNumbersAnew) {
    const MergedPlans merged = Merge({
        {"AC#1,300,\"Boeing 737\"\nAC#2,400,\"Airbus A320\"\n", "AC#1,one\nAC#2,two\n\n; a comment\n"},
        {"; AC#9,1,\"x\"\n// AC#9,1,\"y\"\nAC#1,300, \"BOEING \"\"737\" \nAC#2,280,\"Dash 8\"\n",
         "AC#2,D-A,AC#2,AC#12,x\nAC#12,AC#2,y\nAC#1,z\nac#2,lower\nAC#2\n"},
        {"AC#7,100,\"Free\"\nAC#2,1,\"Taken\"\nac#7,1,\"Case, "
         "too\"\nAC#3,1,\"Another\"\nAC#3,9,\"another\"\n",
         "AC#7,a\nAC#2,b\nAC#3,c\n"},
    });
    EXPECT_EQ(merged.aircraft,
              "AC#1,300,\"Boeing 737\"\nAC#2,400,\"Airbus A320\"\n"
              "AC#3,280,\"Dash 8\"\n"
              "AC#7,100,\"Free\"\nAC#8,1,\"Taken\"\nAC#9,1,\"Another\"\n")
        << "a line of four parts is left out";
    EXPECT_EQ(merged.flights,
              "AC#1,one\nAC#2,two\n\n; a comment\n"
              "AC#3,D-A,AC#3,AC#12,x\nAC#12,AC#2,y\nAC#1,z\nac#2,lower\nAC#2\n"
              "AC#7,a\nAC#8,b\nAC#9,c\n");
}

TEST(PlanMerger, ReadsNoFurtherThanAnOutputWasWrittenSoFar) {
    test::MemoryFileSystem files;
    LineFile aircraft;
    LineFile flights;
    aircraft.Open(files, "/Aircraft.txt");
    flights.Open(files, "/FlightPlans.txt");
    files.files["/F"] = "AC#1,a\n";
    PlanMerger merger(files, aircraft, flights);
    EXPECT_TRUE(merger.AddFlights("/F"));
    EXPECT_TRUE(merger.AddFlights("/FlightPlans.txt"));
    flights.Close();
    EXPECT_EQ(files.files["/FlightPlans.txt"], "AC#1,a\r\nAC#1,a\r\n");
}

}  // namespace
}  // namespace orlo
