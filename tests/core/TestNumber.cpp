#include "core/Number.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace orlo {
namespace {

constexpr auto kNone = std::nullopt;

TEST(Number, HalvesRoundToTheEvenNumber) {
    using Case = std::pair<double, double>;
    const Case cases[] = {{0.5, 0},  {1.5, 2},  {2.5, 2},    {-0.5, 0}, {-1.5, -2}, {-2.5, -2},
                          {0.49, 0}, {0.51, 1}, {-0.51, -1}, {3, 3},    {-7, -7},   {1e15, 1e15}};
    for (const auto& [value, rounded] : cases) EXPECT_EQ(RoundHalfEven(value), rounded) << value;
    EXPECT_EQ(RoundHalfEven(4503599627370495.5), 4503599627370496.0);
}

TEST(Number, WholeNumbersAreReadAsPeopleTypeThem) {
    using Case = std::pair<std::string_view, std::int32_t>;
    const Case cases[] = {{"0", 0},     {"  42  ", 42}, {"+7", 7},    {"-7", -7}, {"007", 7},
                          {"1.", 1},    {".5", 0},      {"1.5", 2},   {"2.5", 2}, {"-2.5", -2},
                          {"-3.5", -4}, {"2.49", 2},    {"2.4999", 2}};
    for (const auto& [text, value] : cases) EXPECT_EQ(ParseWholeNumber(text), value) << text;
    EXPECT_EQ(ParseWholeNumber("2.5000000000000000000001"), 3);
    EXPECT_EQ(ParseWholeNumber("00000000000000000000000000012"), 12);
    EXPECT_EQ(ParseWholeNumber("2147483647.4"), 2147483647);
    for (std::string_view text : {"-2147483648", "-2147483648.5"})
        EXPECT_EQ(ParseWholeNumber(text), std::numeric_limits<std::int32_t>::min());
    for (std::string_view text :
         {"2147483647.5", "2147483648", "-2147483649", "4294967296", "99999999999999999999999999", "", "   ",
          "-", ".", "- 7", "--7", "1 2", "1,5", "1e3", "0x10", "\t7", "1.2.3"}) {
        EXPECT_EQ(ParseWholeNumber(text), kNone) << text;
    }
    EXPECT_EQ(ParseWholeNumber(std::string_view("7\0", 2)), kNone);
}

TEST(Number, DecimalsAreTheNearestValueOfTheirText) {
    const std::string tiny = "0." + std::string(400, '0') + "1";
    const std::string huge(400, '9');
    const std::pair<std::string_view, std::optional<double>> cases[] = {
        {"0.3", 0.3},   {" -118.35 ", -118.35}, {"+.5", 0.5},   {"5.", 5.0},
        {"0.1", 0.1},   {"27.57", 27.57},       {tiny, 0.0},    {huge, kNone},
        {"1e3", kNone}, {"inf", kNone},         {"nan", kNone}, {"", kNone},
        {"+-1", kNone}, {"0x1", kNone}};
    for (const auto& [text, value] : cases) EXPECT_EQ(ParseDecimal(text), value) << text;
}

TEST(Number, NumbersAreWrittenTheSameInEveryLocale) {
    // Where none of these is installed the case runs in the plain locale.
    for (const char* locale : {"de_DE.UTF-8", "fr_FR.UTF-8"}) std::setlocale(LC_ALL, locale);
    EXPECT_EQ(FormatFixed(118.3, 3), "118.300");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(FormatFixed(0.125, 2), "0.13");
    EXPECT_EQ(FormatFixed(-2.5, 0), "-3");
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::max(), 2).size(), 312u);
    EXPECT_EQ(FormatDigits(5, 3), "005");
    EXPECT_EQ(FormatDigits(-5, 3), "-005");
    EXPECT_EQ(FormatDigits(12345, 3), "12345");
    EXPECT_EQ(FormatDigits(std::numeric_limits<std::int64_t>::min(), 2), "-9223372036854775808");
}

}  // namespace
}  // namespace orlo
