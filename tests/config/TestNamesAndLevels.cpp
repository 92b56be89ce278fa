#include <gtest/gtest.h>

#include "config/AircraftClasses.h"
#include "config/AirlineSetsFile.h"
#include "config/FlightLevels.h"
#include "config/NameLists.h"
#include "config/RuleWorld.h"
#include "platform/TemporaryFolder.h"

namespace orlo::test {
namespace {

using Names = std::vector<std::string>;

TEST(NameLists, NamesAreTrimmedInFileOrderAndFoundWithoutRegardToCase) {
    const NameList list =
        ParseNameList("; comment\r\n\r\n  Lufthansa \r\n  ;no\r\n(ABW\r\nLTU;x\r\nIb\xE9ria");
    EXPECT_EQ(list.Names, (Names{"Lufthansa", "(ABW", "LTU;x", "Ib\xE9ria"}));
    EXPECT_EQ(list.SearchText, "*Lufthansa**(ABW**LTU;x**Ib\xE9ria*");
    for (const char* name : {"Lufthansa", "LUFTHANSA", "(abw", "IB\xC9RIA"}) {
        EXPECT_TRUE(ContainsName(list, name)) << name;
    }
    for (const char* name : {"Luft", "hansa", "LTU", " Lufthansa", "; comment"}) {
        EXPECT_FALSE(ContainsName(list, name)) << name;
    }
    const NameList empty = ParseNameList(";A\n \n");
    EXPECT_EQ(empty, NameList());
    EXPECT_FALSE(ContainsName(empty, "A") || ContainsName(empty, ""));
}

TEST(NameLists, EachReaderFillsItsListAndAMissingFileEmptiesIt) {
    const struct {
        const char* name;
        RuleWorld::Reader* read;
        NameList Rules::*list;
    } cases[] = {{"ORLO_NAL.CFG", ReadAirlineNames, &Rules::AirlineNames},
                 {"ORLO_NMD.CFG", ReadModelNames, &Rules::ModelNames},
                 {"ORLO_NTP.CFG", ReadTypeNames, &Rules::TypeNames}};
    for (const auto& [name, read, list] : cases) {
        RuleWorld world;
        for (const char* content : {"OLD\nB\n", "A\nB\n"})
            EXPECT_TRUE(world.Read(read, Concat("/orlo/", name), content)) << name;
        EXPECT_EQ((world.session.rules.*list).Names, (Names{"A", "B"})) << name;
        EXPECT_FALSE(world.ReadMissing(read)) << name;
        EXPECT_EQ(world.session.rules.*list, NameList()) << name;
        EXPECT_EQ(world.messages.shown, (Messages{{kMarkCritical, Concat("File '", name, "' not found.")}}));
    }
}

TEST(FlightLevelRules, LinesOfSevenNumbersAreRulesInFileOrder) {
    const auto parsed = ParseFlightLevels(
        "; from,to\n\n 1000 , 99999,0,179, 310,410,20 \n  "
        ";x\n-1,-1,-1,179,35,95,0\n1,x,3,4,5,6,7\n1,,3,4,5,6,7\n");
    EXPECT_FALSE(parsed.offendingLine);
    EXPECT_EQ(parsed.rules, (std::vector<FlightLevelRule>{{1000, 99999, 0, 179, 310, 410, 20},
                                                          {-1, -1, -1, 179, 35, 95, 0}}));
}

TEST(FlightLevelRules, AWrongCountOfFieldsKeepsTheRulesReadSoFar) {
    for (const std::string line : {"1,2,3,4,5,6", "1,2,3,4,5,6,7,8", "x", "1,2,3,4,5,6,7,"}) {
        RuleWorld world;
        const auto& rules = world.session.rules.FlightLevelRules;
        world.session.rules.FlightLevelRules.resize(5);
        EXPECT_FALSE(world.Read(ReadFlightLevels, "/orlo/ORLO_FL.CFG",
                                "1,2,3,4,5,6,7\r\n" + line + " \r\n8,8,8,8,8,8,8\r\n"));
        EXPECT_EQ(rules, (std::vector<FlightLevelRule>{{1, 2, 3, 4, 5, 6, 7}}));
        EXPECT_FALSE(world.ReadMissing(ReadFlightLevels));
        EXPECT_TRUE(rules.empty());
        EXPECT_EQ(world.messages.shown,
                  (Messages{{kMarkCritical, "Error in file 'ORLO_FL.CFG' in line:\n" + line},
                            {kMarkCritical, "File 'ORLO_FL.CFG' not found."}}));
    }
}

TEST(RuleFiles, TheInstalledFilesReadWithoutAMessage) {
    SystemFileSystem disk;
    FakeMessages messages;
    Session session;
    session.ProgramFolder = ORLO_SOURCE_DIR "/share";
    for (const auto read : {ReadAircraftClasses, ReadAirlines, ReadAirlineNames, ReadModelNames,
                            ReadTypeNames, ReadFlightLevels}) {
        EXPECT_TRUE(read(session, disk, messages));
    }
    EXPECT_TRUE(messages.shown.empty());
    for (std::size_t code = kClassNotUsed; code <= kClassHugeJet; ++code) {
        EXPECT_FALSE(session.rules.Classes.Entries[code].empty()) << code;
    }
    EXPECT_FALSE(session.rules.Airlines.Global.Airlines.empty() || session.rules.Airlines.Countries.empty());
    EXPECT_TRUE(ContainsName(session.rules.TypeNames, "Boeing") &&
                ContainsName(session.rules.ModelNames, "a320"));
    EXPECT_GT(session.rules.FlightLevelRules.size(), 10u);
}

}  // namespace
}  // namespace orlo::test
