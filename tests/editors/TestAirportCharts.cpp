#include "editors/AirportCharts.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "simulator/BglText.h"

namespace orlo {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr std::int32_t kHuge = std::numeric_limits<std::int32_t>::max();

TEST(AirportCharts, RunwaysOfARecordAreDrawnOrLeftOutInTheNote) {
    AirportRecord airport;
    const auto add = [&](float heading, std::int32_t length, std::int32_t width, std::int32_t kind = 0) {
        RunwayRecord& runway = airport.Runways.emplace_back();
        std::tie(runway.Heading, runway.Length, runway.Width, runway.Kind) =
            std::tie(heading, length, width, kind);
    };
    EXPECT_EQ(RunwayChart(airport).Table("\n"), "Runways of  ()\nThere is no runway to draw.\n");
    add(359.97F, 500, 1200);
    airport.Runways[0].Surface = 10;
    add(-90, 2000, -1);
    airport.Runways[0].Landing2 = airport.Runways[1].Takeoff1 = true;
    add(810, 100'000, kHuge, 1);
    airport.Runways[2].Number = 9;
    for (const float heading : {kNaN, std::numeric_limits<float>::infinity()}) add(heading, 900, 30);
    for (const std::int32_t length : {0, -kHuge, kHuge}) add(1, length, 30);
    for (const std::int32_t length : {0, 30}) add(1, length, 30, kHelipad);
    EXPECT_EQ(
        RunwayChart(airport).Table("\n"),
        "Runways of  ()\nRunway\tHeading\tLength (m)\tWidth (m)\tSurface\tClosed\n"
        "0/\t0\t500\t1200\tWater\t0\n0/\t270\t2000\t0\tUnknown\t\n9L/27R\t90\t100000\t0\tUnknown\t9L, 27R\n"
        "Positions aren't known: all runways are drawn around one centre. "
        "Left out: 2 helipads, 5 runways without a usable length or heading.\n");
    airport.Runways.clear();
    for (std::int32_t length = 1; length <= 3000; ++length) add(1, length, 1);
    const ChartContent longest = RunwayChart(airport);
    ASSERT_EQ(longest.runways.size(), 24U);
    EXPECT_EQ(longest.runways.front().length, 2977);
    EXPECT_TRUE(longest.note.ends_with(" Left out: 2976 shorter runways.")) << longest.note;
}

TEST(AirportCharts, ParkingsAreCountedByRadiusInGroupsWhereThoseAreMany) {
    const struct {
        std::vector<float> radii;
        std::string table;
    } cases[] = {
        {{kNaN, -1, 1000, 1e30F},
         "There is no parking to draw. Left out: 4 parkings without a usable radius.\n"},
        {{-1, 7, 0, 17.26F, 7.04F},
         "By radius and class\nRadius (m)\tDock GA\n0\t1\n7\t2\n17.3\t1\n"
         "Left out: 1 parking without a usable radius.\n"},
        {{0, 1, 2.9F, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 99.9F},
         "By radius and class\nRadius from (m), in steps of 2\tDock GA\n0\t2\n2\t2\n4\t2\n6\t2\n8\t2\n"
         "10\t2\n12\t2\n14\t2\n16\t2\n18\t2\n98\t1\n"},
    };
    AirportRecord airport;
    for (const auto& [radii, table] : cases) {
        airport.Parkings.clear();
        for (const float radius : radii) airport.Parkings.push_back({0, 0, radius, 0, 11, "", 0});
        EXPECT_EQ(ParkingChart(airport).Table("\n"), "Parkings of  ()\n" + table);
    }
    for (int i = 0; i < 30'000; ++i)
        airport.Parkings.push_back({0, 0, static_cast<float>(i) / 30, 0, i % 17 - 1, "", 0});
    const ChartPlot plot = ParkingChart(airport).plots.at(0);
    EXPECT_LE(plot.names.size(), 20U);
    EXPECT_EQ(plot.series.size(), 11U);
    EXPECT_EQ(plot.series.back().name, "No class");
}

}  // namespace
}  // namespace orlo
