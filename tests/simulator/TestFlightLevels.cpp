#include <gtest/gtest.h>

#include <limits>
#include <map>

#include "simulator/FlightLevelMaths.h"
#include "support/CaseTable.h"
#include "support/FakeHosts.h"

namespace orlo::test {
namespace {

using Rules = std::vector<FlightLevelRule>;

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

TEST(FlightLevels, BandsAndChecksAgreeWithTheTableOfCases) {
    const auto ruleRows = ReadCaseTable("level-rules.csv");
    const auto rows = ReadCaseTable("levels.csv");
    if (!ruleRows || !rows) GTEST_SKIP() << "no table of levels beside the checkout";
    Rules rules;
    for (const CaseRow& row : *ruleRows) {
        rules.push_back({std::stoi(row[0]), std::stoi(row[1]), std::stoi(row[2]), std::stoi(row[3]),
                         std::stoi(row[4]), std::stoi(row[5]), std::stoi(row[6])});
    }
    for (const CaseRow& row : *rows) {
        const std::int32_t distance = std::stoi(row[1]);
        const std::int32_t course = std::stoi(row[2]);
        const LevelLimits limits{std::stoi(row[3]), std::stoi(row[4])};
        const std::string text = SuggestFlightLevelText(rules, row[0], distance, course, limits);
        const LevelCheck check = CheckFlightLevel(rules, row[0], distance, course, limits, std::stoi(row[6]));
        EXPECT_EQ(text, row[5]) << testing::PrintToString(row);
        EXPECT_EQ(check.Right, row[7] == "True") << testing::PrintToString(row);
        EXPECT_EQ(check.Suggestion, row[8]) << testing::PrintToString(row);
    }
    EXPECT_GE(rows->size(), 100u);
}

// Rules 0 and 1 are for VFR; 2 and 3 for short, 4 and 5 for long legs; east in the even ones.
const Rules kRules = {
    {-1, -1, 0, 179, 35, 175, 20},   {-1, -1, 180, 359, 45, 165, 20},   {0, 250, 0, 179, 70, 230, 20},
    {0, 250, 180, 359, 80, 220, 20}, {251, 9999, 0, 179, 250, 410, 40}, {251, 9999, 180, 359, 260, 260, 0},
};

TEST(FlightLevels, BandFollowsRulesAndLimitsOfTheAircraft) {
    const struct {
        std::string_view flightRules;
        std::int32_t distance, course;
        LevelLimits limits;
        std::string_view expected;
    } cases[] = {
        {"IFR", 300, 90, {0, 999}, "FL250-410 +040"},
        {"IFR", 300, 90, {260, 400}, "FL290-370 +040"},  // stays on the grid of its rule
        {"IFR", 300, 90, {0, 280}, "FL250"},             // the grid has no second level
        {"IFR", 300, 270, {0, 999}, "FL260"},
        {"VFR", 300, 90, {0, 999}, "FL035-175 +020"},
        {"vfr", 300, 270, {0, 999}, "FL045-165 +020"},
        {"IFR", -1, 90, {0, 999}, "FL035-175 +020"},
        {"IFR", 300, -1, {0, 999}, "FL100"},
        {"IFR", 10000, 90, {0, 999}, "FL100"},
        {"IFR", 300, 90, {100, 240}, "FL110-230 +020"},  // the highest rule within reach
        {"IFR", 300, 90, {0, 20}, "FL250-410 +040"},     // no rule within reach: the first stands
        {"IFR", 100, 90, {300, 420}, "FL310"},           // above its rule, yet on its grid
        {"IFR", 300, 270, {300, 400}, "FL300"},          // no rule begins high enough
        {"IFR", 300, 270, {100, 200}, "FL100-200 +020"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(SuggestFlightLevelText(kRules, c.flightRules, c.distance, c.course, c.limits), c.expected)
            << c.flightRules << " " << c.distance << " " << c.course << " " << c.limits.MinFL << "-"
            << c.limits.MaxFL;
    }
}

TEST(FlightLevels, CheckTakesTheLevelsOfTheGridAlone) {
    const struct {
        std::int32_t course;
        std::vector<std::int32_t> right, wrong;
        std::string_view suggestion;
    } cases[] = {
        {90, {250, 370}, {390, 410, 270, 210}, "FL250-370 +040"},
        {270, {260}, {280}, "FL260"},
        {400, {}, {100}, "FL100"},  // without a rule no level is right
    };
    for (const auto& c : cases) {
        const auto check = [&](std::int32_t level) {
            return CheckFlightLevel(kRules, "IFR", 300, c.course, {0, 390}, level);
        };
        for (const std::int32_t level : c.right)
            EXPECT_TRUE(check(level).Right && check(level).Suggestion.empty()) << level;
        for (const std::int32_t level : c.wrong) {
            EXPECT_FALSE(check(level).Right) << level;
            EXPECT_EQ(check(level).Suggestion, c.suggestion) << level;
        }
    }
}

TEST(FlightLevels, DrawnLevelsGiveTheEndsHalfTheWeight) {
    FakeRandom random;
    for (int i = 0; i < 800; ++i) random.draws.push_back((i + 0.5) / 800);
    std::map<std::string, int> counts;
    for (int i = 0; i < 800; ++i) {
        ++counts[SuggestFlightLevel(kRules, "IFR", 300, 90, {0, 999}, false, random)];
    }
    const std::map<std::string, int> expected = {
        {"250", 100}, {"290", 200}, {"330", 200}, {"370", 200}, {"410", 100}};
    EXPECT_EQ(counts, expected);
    // Nothing is drawn where there is no choice.
    EXPECT_EQ(SuggestFlightLevel(kRules, "IFR", 300, 270, {0, 999}, false, random), "260");
    EXPECT_EQ(SuggestFlightLevel(kRules, "IFR", 300, 90, {0, 280}, false, random), "250");
    EXPECT_EQ(SuggestFlightLevel(kRules, "IFR", 300, 400, {0, 999}, false, random), "100");
    EXPECT_EQ(SuggestFlightLevel({}, "IFR", 300, 90, {0, 999}, false, random), "100");
    EXPECT_EQ(SuggestFlightLevel(kRules, "IFR", 300, 90, {0, 999}, true, random), "FL250-410 +040");
    EXPECT_EQ(random.taken, 800u);
}

TEST(FlightLevels, HostileRulesEndTheSearch) {
    const struct {
        Rules rules;
        LevelLimits limits;
        std::string_view expected;
    } cases[] = {
        // The second rule is out of reach, so the first one comes back again and again, below the
        // minimum.
        {{{0, 9999, 0, 359, 100, 400, 0}, {0, 9999, 0, 359, 300, 310, 0}}, {250, 290}, "FL250"},
        {{{0, 9999, 0, 359, 100, 400, -20}, {0, 9999, 0, 359, 300, 310, -20}}, {250, 290}, "FL250-290 +-020"},
        {{{0, 9999, 0, 359, kLeast, kMost, 1}}, {kMost, kMost}, "FL2147483647"},
        {{{0, 9999, 0, 359, kLeast, kMost, 1}}, {kLeast, kMost}, "FL-2147483648-2147483647 +001"},
        {{{0, 9999, 0, 359, kLeast, kMost, kMost}}, {kMost - 1, kMost}, "FL2147483646"},
        {{{0, 9999, 0, 359, kMost, kLeast, kLeast}}, {kLeast, kLeast}, "FL2147483647"},
        {{{0, 9999, 0, 359, 100, 200, 20}}, {-1, -1}, "FL100-200 +020"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(SuggestFlightLevelText(c.rules, "IFR", 300, 90, c.limits), c.expected);
    }
}

}  // namespace
}  // namespace orlo::test
