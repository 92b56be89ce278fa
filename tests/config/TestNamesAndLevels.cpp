#include <gtest/gtest.h>

#include <fstream>
#include <initializer_list>
#include <iterator>

#include "config/AircraftClasses.h"
#include "config/AirlineSetsFile.h"
#include "config/FlightLevels.h"
#include "config/NameLists.h"
#include "support/FakeHosts.h"

namespace orlo::test {
namespace {

using Messages = std::vector<std::pair<int, std::string>>;
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
    struct Case {
        const char* path;
        const char* message;
        bool (*read)(Session&, FileSystem&, MessageHost&);
        NameList Rules::*list;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"/orlo/ORLO_NAL.CFG", "File 'ORLO_NAL.CFG' not found.", ReadAirlineNames, &Rules::AirlineNames},
             {"/orlo/ORLO_NMD.CFG", "File 'ORLO_NMD.CFG' not found.", ReadModelNames, &Rules::ModelNames},
             {"/orlo/ORLO_NTP.CFG", "File 'ORLO_NTP.CFG' not found.", ReadTypeNames, &Rules::TypeNames}}) {
        FakeWorld world;
        Session session;
        session.ProgramFolder = "/orlo";
        for (const char* content : {"OLD\nB\n", "A\nB\n"}) {
            world.files.files[c.path] = content;
            EXPECT_TRUE(c.read(session, world.files, world.messages)) << c.path;
        }
        EXPECT_EQ((session.rules.*c.list).Names, (Names{"A", "B"})) << c.path;
        world.files.files.clear();
        EXPECT_FALSE(c.read(session, world.files, world.messages)) << c.path;
        EXPECT_EQ(session.rules.*c.list, NameList()) << c.path;
        EXPECT_EQ(world.messages.shown, (Messages{{kMarkCritical, c.message}}));
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
        FakeWorld world;
        Session session;
        session.ProgramFolder = "/orlo";
        session.rules.FlightLevelRules.resize(5);
        world.files.files["/orlo/ORLO_FL.CFG"] = "1,2,3,4,5,6,7\r\n" + line + " \r\n8,8,8,8,8,8,8\r\n";
        EXPECT_FALSE(ReadFlightLevels(session, world.files, world.messages));
        EXPECT_EQ(session.rules.FlightLevelRules, (std::vector<FlightLevelRule>{{1, 2, 3, 4, 5, 6, 7}}));
        world.files.files.clear();
        EXPECT_FALSE(ReadFlightLevels(session, world.files, world.messages));
        EXPECT_TRUE(session.rules.FlightLevelRules.empty());
        EXPECT_EQ(world.messages.shown,
                  (Messages{{kMarkCritical, "Error in file 'ORLO_FL.CFG' in line:\n" + line},
                            {kMarkCritical, "File 'ORLO_FL.CFG' not found."}}));
    }
}

TEST(RuleFiles, TheInstalledFilesReadWithoutAMessage) {
    FakeWorld world;
    Session session;
    session.ProgramFolder = "/orlo";
    for (const std::string name :
         {"ORLO_AC.CFG", "ORLO_AL.CFG", "ORLO_NAL.CFG", "ORLO_NMD.CFG", "ORLO_NTP.CFG", "ORLO_FL.CFG"}) {
        std::ifstream file(ORLO_SOURCE_DIR "/share/" + name, std::ios::binary);
        world.files.files["/orlo/" + name] = {std::istreambuf_iterator<char>(file), {}};
    }
    for (const auto read : {ReadAircraftClasses, ReadAirlines, ReadAirlineNames, ReadModelNames,
                            ReadTypeNames, ReadFlightLevels}) {
        EXPECT_TRUE(read(session, world.files, world.messages));
    }
    EXPECT_TRUE(world.messages.shown.empty());
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
