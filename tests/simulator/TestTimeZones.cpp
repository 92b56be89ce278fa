#include <gtest/gtest.h>

#include <array>

#include "core/TimeZoneNames.h"
#include "simulator/TimeZones.h"
#include "support/CaseTable.h"

namespace orlo::test {
namespace {

TEST(TimeZones, ShiftsAgreeWithTheTableOfCases) {
    const auto rows = ReadCaseTable("zones.csv");
    if (!rows) GTEST_SKIP() << "no table of zones beside the checkout";
    for (const CaseRow& row : *rows) {
        const bool invert = row[2] == "True";
        std::string prefix = row[4];
        EXPECT_EQ(ConvertZone(row[0], row[1], invert), row[3]) << testing::PrintToString(row);
        EXPECT_EQ(ConvertZoneWeek(row[0], row[1], prefix, invert), row[5]) << testing::PrintToString(row);
        EXPECT_EQ(prefix, row[6]) << testing::PrintToString(row);
    }
    EXPECT_GE(rows->size(), 100u);
}

TEST(TimeZones, UnusualTextsShiftByWhatCanBeRead) {
    const struct {
        std::string_view time, zone;
        bool invert;
        std::string_view prefix, expected, expectedPrefix;
    } cases[] = {
        {"23:30:00", "GMT +01:00", false, "3/", "00:30:00", "4/"},
        {"23:30:00", "GMT +01:00", true, "3/", "22:30:00", "3/"},
        {"00:15:09", "GMT -00:30", false, "0/", "23:45:09", "6/"},
        {"23:30:00", "GMT +01:00", false, "6/", "00:30:00", "0/"},
        {"23:30:00", "GMT +01:00", false, "7/", "00:30:00", "7/"},
        {"23:30:00", "GMT +01:00", false, "", "00:30:00", ""},
        {"23:30:00", "GMT", false, "3/", "23:30:00", "3/"},
        {"9:05", "", false, "3/", "09:05:00", "3/"},
        {"10:00:00", "+01", false, "3/", "10:00:00", "3/"},
        {"10:00:00", "x01:00", false, "3/", "11:00:00", "3/"},  // any first character but "-" adds
        {"10:00:00", "02:15", false, "3/", "12:15:00", "3/"},   // the first digit passes as the sign
        {"10:00:00", "GMT + 01:00", false, "3/", "10:00:00", "3/"},
        {"10:00:00", "-01:x", false, "3/", "10:00:00", "3/"},
        {"10:00:00", "-:30", false, "3/", "10:00:00", "3/"},
        {"10:00:00", "-01:", false, "3/", "10:00:00", "3/"},
        {"10:00:00", "+1.5:0.25", false, "3/", "11:30:15", "3/"},
        {"10:00:00", "+24:00", false, "3/", "10:00:00", "3/"},  // lands in its own hour: no step
        {"10:00:00", "+99999999999999999999:00", false, "3/", "10:00:00", "3/"},
        {"noon", "GMT +01:00", false, "3/", "noon", "3/"},
        {"24:00:00", "GMT +01:00", false, "3/", "24:00:00", "3/"},
    };
    for (const auto& c : cases) {
        std::string prefix(c.prefix);
        EXPECT_EQ(ConvertZoneWeek(c.time, c.zone, prefix, c.invert), c.expected) << c.time << " " << c.zone;
        EXPECT_EQ(prefix, c.expectedPrefix) << c.time << " " << c.zone;
    }
}

TEST(TimeZones, EveryZoneComesBackWithItsWeekday) {
    constexpr std::array<std::string_view, 7> kLabels = {
        " (Sunday)", " (Monday)", " (Tuesday)", " (Wednesday)", " (Thursday)", " (Friday)", " (Saturday)"};
    for (std::string_view zone : kTimeZoneNames) {
        for (std::string_view time : {"00:00:01", "05:59:00", "11:30:30", "17:00:00", "23:59:59"}) {
            for (std::string_view label : kLabels) {
                std::string shown(label);
                const std::string local = ConvertZoneWeekday(time, zone, shown, false);
                EXPECT_EQ(ConvertZoneWeekday(local, zone, shown, true), time) << zone;
                EXPECT_EQ(shown, label) << time << zone;
            }
        }
    }
    std::string label = " (Saturday)";
    EXPECT_EQ(ConvertZoneWeekday("23:30:00", "GMT +01:00", label, false), "00:30:00");
    EXPECT_EQ(label, " (Sunday)");
    label = "(Sunday)";
    ConvertZoneWeekday("23:30:00", "GMT +01:00", label, false);
    EXPECT_EQ(label, "(Sunday)");
}

}  // namespace
}  // namespace orlo::test
