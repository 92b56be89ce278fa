#include "forms/Chart.h"

#include <cmath>
#include <utility>

#include "core/ClockTime.h"
#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

std::string ValueText(double value, int decimals) {
    return FormatFixed(value, value == std::floor(value) ? 0 : decimals);
}

void AppendRow(std::string& out, const std::vector<std::string>& fields, std::string_view lineEnd) {
    for (std::size_t i = 0; i < fields.size(); ++i) out.append(i == 0 ? "" : "\t").append(fields[i]);
    out.append(lineEnd);
}

void AppendPlot(std::string& out, const ChartPlot& plot, std::string_view lineEnd) {
    AppendRow(out, {plot.title}, lineEnd);
    for (const ChartLevel& level : plot.levels)
        AppendRow(out, {level.name, ValueText(level.value, plot.decimals)}, lineEnd);
    std::vector<std::string> fields = {plot.placesTitle};
    for (const ChartSeries& series : plot.series) fields.push_back(series.name);
    AppendRow(out, fields, lineEnd);
    for (std::size_t place = 0; place < plot.PlaceCount(); ++place) {
        fields = {plot.PlaceText(place)};
        for (const ChartSeries& series : plot.series) {
            const bool has = place < series.values.size();
            fields.push_back(has ? ValueText(series.values[place], plot.decimals) : "");
        }
        AppendRow(out, fields, lineEnd);
    }
}

void AppendRunways(std::string& out, const ChartContent& content, std::string_view lineEnd) {
    AppendRow(out,
              {"Runway", "Heading", Concat("Length (", content.lengthUnit, ")"),
               Concat("Width (", content.lengthUnit, ")"), "Surface", "Closed"},
              lineEnd);
    for (const ChartRunway& runway : content.runways) {
        std::string closed;
        for (const RunwayEnd& end : runway.ends) {
            if (end.closed) closed.append(closed.empty() ? "" : ", ").append(end.number);
        }
        AppendRow(out,
                  {Concat(runway.ends[0].number, "/", runway.ends[1].number), ValueText(runway.heading, 1),
                   std::to_string(runway.length), std::to_string(runway.width), runway.surface, closed},
                  lineEnd);
    }
}

}  // namespace

std::string ChartPlot::PlaceText(std::size_t place) const {
    switch (places) {
        case ChartPlaces::Named:
            return names[place];
        case ChartPlaces::Time:
            return FormatClockTime(static_cast<std::int32_t>(at[place]));
        case ChartPlaces::Number:
            break;
    }
    return ValueText(at[place], decimals);
}

std::string ChartContent::Table(std::string_view lineEnd) const {
    std::string text;
    AppendRow(text, {title}, lineEnd);
    for (const ChartPlot& plot : plots) AppendPlot(text, plot, lineEnd);
    if (!runways.empty()) AppendRunways(text, *this, lineEnd);
    if (!note.empty()) AppendRow(text, {note}, lineEnd);
    return text;
}

std::string ChartTables(std::span<const Chart* const> charts) {
    constexpr std::string_view kLineEnd = "\r\n";
    std::string text;
    for (const Chart* chart : charts)
        text.append(text.empty() ? "" : kLineEnd).append(chart->Content().Table(kLineEnd));
    return text;
}

void Chart::Show(ChartContent content) {
    content_ = std::move(content);
    ++revision_;
}

}  // namespace orlo
