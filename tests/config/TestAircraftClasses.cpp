#include <gtest/gtest.h>

#include <algorithm>

#include "config/AircraftClasses.h"
#include "config/RuleWorld.h"
#include "core/Text.h"

namespace orlo::test {
namespace {

constexpr const char* kPath = "/orlo/ORLO_AC.CFG";

std::vector<std::string> IDs(const ClassLists& lists, AircraftClass classCode) {
    std::vector<std::string> ids;
    for (const ClassEntry& entry : lists.Entries[classCode]) ids.push_back(entry.ID);
    return ids;
}

// A line of that many parts, the name included.
std::string LineOf(std::string_view name, int parts) {
    std::string line(name);
    for (int i = 1; i < parts; ++i) line += Concat(',', i);
    return line;
}

TEST(AircraftClasses, FieldsStandInTheOrderOfTheFileAndBuiltInValuesHoldWhereItGivesNone) {
    const auto parsed = ParseAircraftClasses(
        "comment, with, commas\r\n"
        "[Small Jet,430,100,370,90,2100,5000,HARD/SNOW,15,GATE,95]\r\n"
        "737-200\r\n"
        "A32\xE9,450,60,398,40,3200,1700, HARD ,3,PARKING,100\r\n"
        "[Large Jet,fast,250.5,99999999999,,5000,x,,y,,z]\r\n"
        "A,fast,1,2,3,4,x,,y,,z\r\n");
    ASSERT_TRUE(parsed.lists);
    const ClassProfile small{370, 100, 2100, 90, 430, 5000, "HARD/SNOW", 15, "GATE", 95};
    const ClassProfile large{420, 250, 5000, 1000, 480, 0, "", 0, "", 0};
    EXPECT_EQ(parsed.lists->Profiles[kClassSmallJet], small);
    EXPECT_EQ(parsed.lists->Profiles[kClassLargeJet], large);
    const std::vector<ClassEntry> entries = {
        {"737-200", -1, -1, -1, -1, -1, -1, "", -1, "", -1},
        {"A32\xE9", 3200, 40, 398, 60, 450, 1700, " HARD ", 3, "PARKING", 100},
    };
    const std::vector<ClassEntry> odd = {{"A", 4, 3, 2, 1, -1, -1, "", -1, "", -1}};
    EXPECT_EQ(parsed.lists->Entries[kClassSmallJet], entries);
    EXPECT_EQ(parsed.lists->Entries[kClassLargeJet], odd);
}

TEST(AircraftClasses, SectionsReadTheSameInAnyOrderCaseAndLineEnd) {
    const std::string micro = "[Micro Prop,1,2,3,4,5,6,HARD,7,GATE,8]\r\nC172\r\n\r\n  \r\nc310\r\n";
    const std::string huge = "[HUGE JET,1,2,3,4,5,6,HARD,7,GATE,8]\r\n747\r\n";
    const std::string unused = "[Not Used]\r\n  UFO, the ;first \r\n\r\n";
    const std::string other = "[Balloon,1]\r\nhot,air\r\n";
    const std::string mixed =
        "\xEF\xBB\xBF[ not used ,x]\nUFO, the ;first\n[balloon\nhot,air\n"
        "[huge jet,1,2,3,4,5,6,HARD,7,GATE,8] remark\n747\n"
        "[ micro prop ,1,2,3,4,5,6,HARD,7,GATE,8]\nC172\nc310";
    const auto expected = ParseAircraftClasses(micro + huge + unused + other).lists;
    ASSERT_TRUE(expected);
    EXPECT_EQ(IDs(*expected, kClassMicroProp), (std::vector<std::string>{"C172", "c310"}));
    EXPECT_EQ(IDs(*expected, kClassHugeJet), (std::vector<std::string>{"747"}));
    EXPECT_EQ(IDs(*expected, kClassNotUsed), (std::vector<std::string>{"UFO, the ;first"}));
    EXPECT_EQ(ParseAircraftClasses(other + unused + huge + micro).lists, expected);
    EXPECT_EQ(ParseAircraftClasses(mixed).lists, expected);
}

TEST(AircraftClasses, WrongCountsOfPartsAreRefusedWithTheirLine) {
    for (const std::string_view name : {"Not Used", "Balloon", "Micro Prop", "Mid Prop", "Large Prop",
                                        "Micro Jet", "Small Jet", "Large Jet", "Huge Jet"}) {
        const bool any = name == "Not Used" || name == "Balloon";
        for (int parts : {1, 5, 6, 10, 11, 12, 20}) {
            const bool accepted = any || parts == 11 || (parts > 11 && name == "Huge Jet");
            const std::string line = Concat('[', LineOf(name, parts), ']');
            const auto parsed = ParseAircraftClasses(Concat("\r\n", line, "\r\nA320\r\n"));
            EXPECT_EQ(parsed.lists.has_value(), accepted) << line;
            EXPECT_EQ(parsed.offendingLine, accepted ? "" : line);
        }
    }
    for (const char* name : {"Micro Prop", "Huge Jet"}) {
        for (int parts : {1, 2, 10, 11, 12}) {
            const std::string line = LineOf(" A320 ", parts);
            const auto parsed = ParseAircraftClasses(Concat('[', LineOf(name, 11), "]\n", line, "\n1,2\n"));
            EXPECT_EQ(parsed.offendingLine, parts == 1 || parts == 11 ? "1,2" : line) << name;
        }
    }
}

TEST(AircraftClasses, FailuresAreToldAndLeaveTheLists) {
    RuleWorld world;
    EXPECT_TRUE(world.Read(ReadAircraftClasses, kPath, "[Not Used]\r\nUFO\r\n"));
    const ClassLists before = world.session.rules.Classes;
    EXPECT_FALSE(world.Read(ReadAircraftClasses, kPath, "[Not Used]\r\nX\r\n[Huge Jet,1,2,3,4,5,6]\r\n"));
    EXPECT_EQ(world.session.rules.Classes, before);
    EXPECT_FALSE(world.ReadMissing(ReadAircraftClasses));
    EXPECT_EQ(world.session.rules.Classes, before);
    const Messages expected = {
        {kMarkCritical, "Error in file 'ORLO_AC.CFG' in line:\n[Huge Jet,1,2,3,4,5,6]"},
        {kMarkCritical, "File 'ORLO_AC.CFG' not found. Please copy the file to the ORLO program folder."}};
    EXPECT_EQ(world.messages.shown, expected);
}

TEST(AircraftClasses, WritingKeepsOrderAndLeavesUnsetEntriesAsTheirID) {
    RuleWorld world;
    ASSERT_TRUE(world.Read(ReadAircraftClasses, kPath,
                           "[Not Used]\nUFO\n[Micro Prop,140,0,100,0,600,2000,SOFT,5,GATE,10]\n"
                           "C310\nC172,120,0,100,-1,600,1,HARD,2,GATE,3\nB,1,2,3,4,5,-1,,-1,,-1\n"
                           ",1,2,3,4,5,6,HARD,7,GATE,8\n"));
    ASSERT_TRUE(WriteAircraftClasses(world.session, world.files));
    const std::string expected =
        "\r\n[Micro Prop,140,0,100,0,600,2000,SOFT,5,GATE,10]\r\nC310\r\nC172\r\nB,1,2,3,4,5,-1,,-1,,-1\r\n"
        "\r\n[Mid Prop,200,0,150,0,1100,0,,0,,0]\r\n"
        "\r\n[Large Prop,250,80,150,100,1000,0,,0,,0]\r\n"
        "\r\n[Micro Jet,400,100,370,100,1000,0,,0,,0]\r\n"
        "\r\n[Small Jet,430,100,370,100,2100,0,,0,,0]\r\n"
        "\r\n[Large Jet,480,250,420,1000,5500,0,,0,,0]\r\n"
        "\r\n[Huge Jet,490,250,420,2000,7000,0,,0,,0]\r\n"
        "\r\n[Not Used]\r\nUFO\r\n";
    const std::string written = world.files.files[kPath];
    EXPECT_EQ(std::count(written.begin(), written.end(), ';'), 9);  // the lines of comment in front
    EXPECT_EQ(written.substr(written.find("\n\r\n") + 1), expected);

    ASSERT_TRUE(ReadAircraftClasses(world.session, world.files, world.messages));
    EXPECT_EQ(FormatAircraftClasses(world.session.rules.Classes), written);
}

}  // namespace
}  // namespace orlo::test
