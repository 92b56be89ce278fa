#include "core/Text.h"

#include <gtest/gtest.h>

#include "core/KeyedIndex.h"

namespace orlo {
namespace {

TEST(Text, CaseIsFoldedByCodePage1252AndEveryByteSurvivesTheScreen) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"", ""},
        {"abcXYZ019_[`{", "ABCXYZ019_[`{"},
        {"\xE0\xE9\xF6\xFE", "\xC0\xC9\xD6\xDE"},
        {"\xF7\xD7\xDF", "\xF7\xD7\xDF"},          // division, multiplication and sharp s have no other case
        {"\x9A\x9C\x9E\xFF", "\x8A\x8C\x8E\x9F"},  // letters outside of the two regular blocks
        {"\x83\xAA\xB5\xBA", "\x83\xAA\xB5\xBA"},  // no letters with an upper case in this code page
    };
    for (const auto& [text, upper] : cases) {
        EXPECT_EQ(UpperText(text), upper);
        EXPECT_TRUE(EqualNoCase(text, upper));
        EXPECT_EQ(CompareNoCase(text, upper), 0);
        EXPECT_EQ(HashNoCase(text), HashNoCase(upper));
    }
    for (int i = 0; i < 256; ++i) {
        const char character = static_cast<char>(i);
        EXPECT_EQ(UpperChar(LowerChar(character)), UpperChar(character)) << i;
        EXPECT_EQ(LowerChar(UpperChar(character)), LowerChar(character)) << i;
        const std::string one(1, character);
        EXPECT_EQ(FromScreen(ToScreen(one)), one) << i;
    }
}

TEST(Text, ComparingOrdersByFoldedBytesAndThenByLength) {
    const std::pair<std::string_view, std::string_view> cases[] = {{"", "a"},  {"AB", "abc"}, {"a_", "Z_z"},
                                                                   {"Z", "_"}, {"z", "\xE9"}, {"abc", "ABD"}};
    for (const auto& [smaller, larger] : cases) {
        EXPECT_LT(CompareNoCase(smaller, larger), 0) << smaller;
        EXPECT_GT(CompareNoCase(larger, smaller), 0) << smaller;
        EXPECT_FALSE(EqualNoCase(smaller, larger)) << smaller;
    }
}

TEST(Text, PartsAreFoundWithoutRegardToCase) {
    const struct {
        std::string_view text, part;
        bool starts, ends, contains;
    } cases[] = {
        {"Boeing 747", "", true, true, true},          {"Boeing 747", "BOEING", true, false, true},
        {"Boeing 747", "g 747", false, true, true},    {"Boeing 747", "ING 7", false, false, true},
        {"Boeing", "Boeing 747", false, false, false}, {"", "x", false, false, false},
        {"Zo\xEB", "O\xCB", false, true, true},        {"aab", "AB", false, true, true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(StartsWithNoCase(c.text, c.part), c.starts) << c.text << "|" << c.part;
        EXPECT_EQ(EndsWithNoCase(c.text, c.part), c.ends) << c.text << "|" << c.part;
        EXPECT_EQ(ContainsNoCase(c.text, c.part), c.contains) << c.text << "|" << c.part;
    }
}

TEST(Text, PiecesComeApartAndTogether) {
    using Parts = std::vector<std::string_view>;
    EXPECT_EQ(SplitText("", ','), (Parts{""}));
    EXPECT_EQ(SplitText(" a,,b ,", ','), (Parts{" a", "", "b ", ""}));
    EXPECT_EQ(TrimBlanks("  a b\t "), "a b\t");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(ReplaceAll("aXXbXXX", "XX", "X"), "aXbXX");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
}

TEST(Text, ScreensShowUtf8AsItIsAndOtherBytesAsCodePage1252) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"plain", "plain"},
        {"Z\xFCrich \x80", "Z\xC3\xBCrich \xE2\x82\xAC"},                  // ue, euro
        {"Z\xC3\xBCrich", "Z\xC3\xBCrich"},                                // valid UTF-8 stays
        {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                                  // an overlong form is none
        {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},                  // nor is half a pair
        {"\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC"},  // nor one beyond the last
        {"\xE2\x82", "\xC3\xA2\xE2\x80\x9A"},                              // nor one that is cut
        {"\xF0\x9F\x9B\xA9", "\xF0\x9F\x9B\xA9"},
    };
    for (const auto& [bytes, screen] : cases) EXPECT_EQ(ToScreen(bytes), screen);
    // And what was typed becomes code page 1252 where it can.
    EXPECT_EQ(FromScreen("Z\xC3\xBCrich \xE2\x82\xAC \xC5\xB8"), "Z\xFCrich \x80 \x9F");
    EXPECT_EQ(FromScreen("\xC5\x81\xC3\xB3"
                         "d\xC5\xBA"),
              "\xC5\x81\xC3\xB3"
              "d\xC5\xBA");                           // has no byte
    EXPECT_EQ(FromScreen("Z\xFCrich"), "Z\xFCrich");  // no UTF-8 at all
}

TEST(Text, AKeyedIndexRefusesASecondEqualKey) {
    KeyedIndex<int> index;
    EXPECT_TRUE(index.Add("EDDF", 1));
    EXPECT_FALSE(index.Add("eddf", 2));
    EXPECT_TRUE(index.Add("", 3));
    ASSERT_NE(index.Find("Eddf"), nullptr);
    EXPECT_EQ(*index.Find("Eddf"), 1);
    EXPECT_EQ(index.Find("EDD"), nullptr);
    EXPECT_TRUE(index.Remove("eDDf"));
    EXPECT_FALSE(index.Remove("eDDf"));
    EXPECT_FALSE(index.Contains("EDDF"));
    EXPECT_EQ(index.Count(), 1u);
}

}  // namespace
}  // namespace orlo
