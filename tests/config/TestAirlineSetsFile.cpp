#include <gtest/gtest.h>

#include "config/AirlineSetsFile.h"
#include "config/RuleWorld.h"
#include "core/Text.h"

namespace orlo::test {
namespace {

// The set as a line: name, patterns, airlines with their shares.
std::string Told(const AirlineSet& set) {
    std::string text = Concat(set.Name, '|', set.TailPatterns);
    for (const AirlineEntry& airline : set.Airlines) text += Concat('|', airline.Name, '=', airline.Percent);
    return text;
}

std::vector<std::string> Told(const std::vector<AirlineSet>& sets) {
    std::vector<std::string> texts;
    for (const AirlineSet& set : sets) texts.push_back(Told(set));
    return texts;
}

TEST(AirlineSetsFile, EachHeadFillsItsListInFileOrder) {
    const AirlineSets sets = ParseAirlines(
        "OUTSIDE,1\n#out\n"
        "[airport: lowi ] remark\nA\n"
        "[STATE:North America/United States/Alaska]\nB\n"
        "[City:Europe/\xD6sterreich/Graz]\nC\n"
        "[Country:Europe/Austria]\nD\n"
        "[Region:Europe]\nE\n"
        "[Region:Asia]\nF\n"
        "[GlobalAirlines]\nG\n"
        "[Region:Europe]\nH\n"
        "[global]\nI\n");
    using Texts = std::vector<std::string>;
    EXPECT_EQ(Told(sets.Airports), Texts{"lowi||A=-1"});
    EXPECT_EQ(Told(sets.States), Texts{"North America/United States/Alaska||B=-1"});
    EXPECT_EQ(Told(sets.Cities), Texts{"Europe/\xD6sterreich/Graz||C=-1"});
    EXPECT_EQ(Told(sets.Countries), Texts{"Europe/Austria||D=-1"});
    EXPECT_EQ(Told(sets.Regions), (Texts{"Europe||E=-1", "Asia||F=-1", "Europe||H=-1"}));
    EXPECT_EQ(Told(sets.Global), "||G=-1|I=-1");
}

TEST(AirlineSetsFile, AHeadThatOpensNoSetDropsItsLines) {
    for (const char* head : {"[Region:]", "[Airport:  ]", "[Continent:Europe]", "[ Region:Europe]",
                             "[Region]", "[]", "[Region:Europe", "[Region ]:Europe"}) {
        const AirlineSets sets = ParseAirlines(Concat("[Global]\r\nA\r\n", head, "\r\nB,5\r\n#N!!\r\n"));
        EXPECT_EQ(Told(sets.Global), "||A=-1") << head;
        EXPECT_TRUE(sets.Regions.empty() && sets.Airports.empty()) << head;
    }
}

TEST(AirlineSetsFile, BodyLinesAreAirlinesPatternsOrSkipped) {
    const auto told = [](std::string_view line) {
        return Told(ParseAirlines(Concat("[Global]\n", line)).Global);
    };
    const std::pair<std::string_view, std::string_view> lines[] = {
        {"", "|"},
        {"   ", "|"},
        {";KLM,5", "|"},
        {"KLM", "||KLM=-1"},
        {"  KLM (Royal), 5", "||KLM =5"},
        {"KLM ; Royal,5", "||KLM =5"},
        {"KLM;(Royal);,5", "||KLM=5"},
        {"KLM(Royal;,5", "||KLM=5"},
        {"(KLM),5", "||=5"},
        {"#n!!-.\xE9", "|N!!-.\xC9"},
        {"#N!!\n#d-..", "|N!!,D-.."},
        {"# n ", "| N "},
        {" #N", "||#N=-1"},
    };
    for (const auto& [line, expected] : lines) EXPECT_EQ(told(line), expected) << line;
    using Share = std::pair<std::string_view, int>;
    const Share shares[] = {{"", -1},     {"many", -1}, {"5%", -1},         {" 40 ,x", 40},
                            {"0", 0},     {"100", 100}, {"150", 100},       {"-5", -5},
                            {"12.5", 12}, {"13.5", 14}, {"99999999999", -1}};
    for (const auto& [share, percent] : shares)
        EXPECT_EQ(told(Concat("KLM,", share)), Concat("||KLM=", percent)) << share;
}

TEST(AirlineSetsFile, AReadReplacesTheSetsAndAMissingFileLeavesThem) {
    RuleWorld world;
    const AirlineSets& sets = world.session.rules.Airlines;
    world.session.rules.Airlines = ParseAirlines("[Global]\nOLD\n[Region:Old]\n");
    EXPECT_TRUE(world.Read(ReadAirlines, "/orlo/Orlo_al.cfg", "[Region:New]\r\nNEW,7\r\n"));
    EXPECT_FALSE(world.ReadMissing(ReadAirlines));
    EXPECT_EQ(Told(sets.Global), "|");
    EXPECT_EQ(Told(sets.Regions), std::vector<std::string>{"New||NEW=7"});
    EXPECT_EQ(world.messages.shown, (Messages{{kMarkCritical, "File 'ORLO_AL.CFG' not found."}}));
}

}  // namespace
}  // namespace orlo::test
