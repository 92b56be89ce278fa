#include "core/ClockTime.h"

#include <gtest/gtest.h>

namespace orlo {
namespace {

constexpr auto kNone = std::nullopt;

TEST(ClockTime, TimesAreReadInTwentyFourHours) {
    const std::pair<std::string_view, std::optional<std::int32_t>> cases[] = {
        {"0:00", 0},         {"00:00:00", 0},   {"9:05", 32700},      {" 09:05:07 ", 32707},
        {"23:59:59", 86399}, {"1:2:3", 3723},   {"24:00", kNone},     {"12:60", kNone},
        {"12:00:60", kNone}, {"", kNone},       {"12", kNone},        {"12:", kNone},
        {":30", kNone},      {"12:00:", kNone}, {"12:00:00:", kNone}, {"12:00:00:00", kNone},
        {"1 2:00", kNone},   {"-1:00", kNone},  {"12:+5", kNone},     {"012:00", kNone},
        {"12:00 PM", kNone}, {"12.30", kNone},  {"1/12:00", kNone},
    };
    for (const auto& [text, seconds] : cases) EXPECT_EQ(ParseClockTime(text), seconds) << text;
    // Formatting drops whole days.
    for (std::int64_t day : {-86400, 0, 86400}) EXPECT_EQ(FormatClockTime(day), "00:00:00");
    for (std::int64_t last : {-1, 86399}) EXPECT_EQ(FormatClockTime(last), "23:59:59");
    EXPECT_EQ(FormatClockTime(std::int64_t{86400} * 1000000 + 3661), "01:01:01");
}

TEST(ClockTime, AnyMomentHasADate) {
    const std::pair<std::int64_t, std::string_view> cases[] = {{-1, "1969-12-31 23:59:59"},
                                                               {951'782'400, "2000-02-29 00:00:00"},
                                                               {INT64_MIN, "0000-01-01 00:00:00"},
                                                               {INT64_MAX, "9999-12-31 23:59:59"}};
    for (const auto& [seconds, written] : cases) EXPECT_EQ(FormatDateTime(seconds), written);
}

TEST(ClockTime, WeekTimesHaveADayInFront) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"0/00:00:00", "0/00:00:00"}, {"6/23:59:59", "6/23:59:59"}, {"3/7:05", "3/07:05:00"}};
    for (const auto& [text, written] : cases) EXPECT_EQ(FormatWeekTime(ParseWeekTime(text).value()), written);
    for (std::string_view text : {"7/00:00:00", "-1/00:00", "/12:00", "12:00:00", "1/2/12:00", "x/12:00"})
        EXPECT_FALSE(ParseWeekTime(text)) << text;
    EXPECT_EQ(SplitDayPrefix("12:00").Prefix, "");
    EXPECT_EQ(SplitDayPrefix("12:00").Clock, "12:00");
}

}  // namespace
}  // namespace orlo
