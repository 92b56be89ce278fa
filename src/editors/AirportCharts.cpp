#include "editors/AirportCharts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Number.h"
#include "core/ParkingClassNames.h"
#include "core/Text.h"
#include "editors/AirportReport.h"
#include "simulator/BglText.h"

namespace orlo {
namespace {

constexpr std::size_t kMostRunways = 24;
constexpr std::int32_t kGreatestLength = 100'000;  // metres

// Radii are counted in tenths of a metre.
constexpr int kPerMetre = 10;
constexpr std::size_t kMostRadii = 20;
constexpr float kGreatestRadius = 1000;  // metres
// Widths of a group, of which the last leaves few enough whatever the radii.
constexpr std::array<std::int32_t, 8> kSteps = {1, 10, 20, 50, 100, 200, 500, 1000};

std::string TitleOf(std::string_view what, const AirportRecord& airport) {
    return Concat(what, " of ", airport.Name, " (", airport.ICAO, ")");
}

// "3 helipads" and what is behind it; nothing for 0.
std::string Counted(std::size_t count, std::string_view one, std::string_view behind = "") {
    return count == 0 ? "" : Concat(count, " ", one, count == 1 ? "" : "s", behind);
}

// Puts " Left out: 1 helipad, 2 shorter runways." behind the note, from those that aren't empty.
void NoteLeftOut(std::string& note, std::initializer_list<std::string> leftOut) {
    std::string_view before = note.empty() ? "Left out: " : " Left out: ";
    for (const std::string& one : leftOut) {
        if (!one.empty()) note.append(std::exchange(before, ", ")).append(one);
    }
    if (before == ", ") note.append(".");
}

bool HasPlaceOnChart(const RunwayRecord& runway) {
    return std::isfinite(runway.Heading) && runway.Length > 0 && runway.Length <= kGreatestLength;
}

// To a tenth of a degree, 0 to below 360.
double ChartHeading(float heading) {
    const double rounded = std::fmod(RoundHalfEven(std::fmod(heading, 360.0) * 10) / 10, 360.0);
    return rounded < 0 ? rounded + 360 : rounded;
}

ChartRunway SeenFromAbove(const RunwayRecord& runway, std::int32_t greatestWidth) {
    return {.heading = ChartHeading(runway.Heading),
            .length = runway.Length,
            .width = runway.Width >= 0 && runway.Width <= greatestWidth ? runway.Width : 0,
            .surface = std::string(SurfaceWord(runway.Surface)),
            .ends = {{RunwayName(runway.Number, runway.Kind), !runway.Takeoff1 && !runway.Landing1},
                     {OtherRunwayName(runway.Number, runway.Kind), !runway.Takeoff2 && !runway.Landing2}}};
}

// The longest of them, in their order.
void KeepLongest(std::vector<const RunwayRecord*>& runways) {
    if (runways.size() <= kMostRunways) return;
    std::stable_sort(runways.begin(), runways.end(),
                     [](const RunwayRecord* a, const RunwayRecord* b) { return a->Length > b->Length; });
    runways.resize(kMostRunways);
    std::sort(runways.begin(), runways.end());  // they stand in one vector in that order
}

// The parkings at one radius by the code of their class, at 0 those of no class.
using ClassCounts = std::array<double, kParkingClassNames.size()>;
using RadiusCounts = std::map<std::int32_t, ClassCounts>;

std::size_t ClassPlace(std::int32_t code) {
    return ParkingClassWord(code).empty() ? 0 : static_cast<std::size_t>(code);
}

// By the lower bound of the group.
RadiusCounts Grouped(const RadiusCounts& counts, std::int32_t step) {
    RadiusCounts groups;
    for (const auto& [radius, classes] : counts) {
        ClassCounts& group = groups[radius / step * step];
        for (std::size_t i = 0; i < group.size(); ++i) group[i] += classes[i];
    }
    return groups;
}

std::string MetresText(std::int32_t tenths) {
    return FormatFixed(static_cast<double>(tenths) / kPerMetre, tenths % kPerMetre == 0 ? 0 : 1);
}

ChartPlot PlotOf(const RadiusCounts& groups, std::int32_t step) {
    ChartPlot plot;
    plot.title = "By radius and class";
    plot.placesTitle = step == 1 ? "Radius (m)" : Concat("Radius from (m), in steps of ", MetresText(step));
    plot.valuesTitle = "Parkings";
    plot.stacked = true;
    for (const auto& [from, classes] : groups) plot.names.push_back(MetresText(from));
    const auto addSeries = [&](std::size_t place, std::string_view name) {
        ChartSeries series;
        series.name = name;
        double count = 0;
        for (const auto& [from, classes] : groups) count += series.values.emplace_back(classes[place]);
        if (count > 0) plot.series.push_back(std::move(series));
    };
    for (std::size_t i = kFirstParkingClass; i < kParkingClassNames.size(); ++i)
        addSeries(i, kParkingClassNames[i]);
    addSeries(0, "No class");
    return plot;
}

}  // namespace

ChartContent RunwayChart(const AirportRecord& airport) {
    ChartContent chart;
    chart.title = TitleOf("Runways", airport);
    chart.lengthUnit = "m";
    std::vector<const RunwayRecord*> drawn;
    std::size_t helipads = 0;
    for (const RunwayRecord& runway : airport.Runways) {
        if (runway.Kind == kHelipad)
            ++helipads;
        else if (HasPlaceOnChart(runway))
            drawn.push_back(&runway);
    }
    const std::size_t usable = drawn.size();
    KeepLongest(drawn);
    std::int32_t longest = 0;
    for (const RunwayRecord* runway : drawn) longest = std::max(longest, runway->Length);
    for (const RunwayRecord* runway : drawn) chart.runways.push_back(SeenFromAbove(*runway, longest));
    chart.note = drawn.empty() ? "There is no runway to draw."
                               : "Positions aren't known: all runways are drawn around one centre.";
    NoteLeftOut(chart.note, {Counted(helipads, "helipad"),
                             Counted(airport.Runways.size() - helipads - usable, "runway",
                                     " without a usable length or heading"),
                             Counted(usable - drawn.size(), "shorter runway")});
    return chart;
}

ChartContent ParkingChart(const AirportRecord& airport) {
    ChartContent chart;
    chart.title = TitleOf("Parkings", airport);
    RadiusCounts counts;
    std::size_t unusable = 0;
    for (const ParkingRecord& parking : airport.Parkings) {
        if (parking.Radius >= 0 && parking.Radius < kGreatestRadius)
            ++counts[static_cast<std::int32_t>(RoundHalfEven(parking.Radius * kPerMetre))]
                    [ClassPlace(parking.Class)];
        else
            ++unusable;
    }
    RadiusCounts groups = counts;
    std::size_t step = 0;
    while (groups.size() > kMostRadii) groups = Grouped(counts, kSteps[++step]);
    if (groups.empty())
        chart.note = "There is no parking to draw.";
    else
        chart.plots.push_back(PlotOf(groups, kSteps[step]));
    NoteLeftOut(chart.note, {Counted(unusable, "parking", " without a usable radius")});
    return chart;
}

}  // namespace orlo
