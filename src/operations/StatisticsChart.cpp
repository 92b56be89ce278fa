#include "operations/StatisticsChart.h"

#include <algorithm>

#include "core/AircraftClassNames.h"
#include "core/ClockTime.h"
#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

// Hours of the day.
struct HourRange {
    std::int32_t first = 0;
    std::int32_t last = 23;
};

// Those of the report, and all others with events: a zone that was changed may lead beyond the times of the
// tab.
HourRange ShownHours(const TimetableStatistics& statistics, const ReportHead& head) {
    HourRange range{head.firstHour, head.lastHour};
    for (std::int32_t hour = 0; hour < 24; ++hour) {
        const auto& count = statistics.hours[static_cast<std::size_t>(hour)];
        if (count.arrivals == 0 && count.departures == 0) continue;
        range.first = std::min(range.first, hour);
        range.last = std::max(range.last, hour);
    }
    return range;
}

ChartPlot HoursPlot(const TimetableStatistics& statistics, const HourRange& range) {
    ChartPlot plot;
    plot.title = "Arrivals and departures";
    plot.placesTitle = "Hour";
    plot.valuesTitle = "Flights";
    ChartSeries arrivals{SeriesKind::Bars, "Arrivals", {}};
    ChartSeries departures{SeriesKind::Bars, "Departures", {}};
    for (std::int32_t hour = range.first; hour <= range.last; ++hour) {
        const auto& count = statistics.hours[static_cast<std::size_t>(hour)];
        plot.names.push_back(FormatDigits(hour, 2));
        arrivals.values.push_back(count.arrivals);
        departures.values.push_back(count.departures);
    }
    plot.series = {std::move(arrivals), std::move(departures)};
    return plot;
}

ChartSeries StepsOf(const GroundSteps& steps, std::size_t code, std::string_view name) {
    const std::vector<std::int32_t>& counts = steps.Counts(code);
    return {SeriesKind::Steps, std::string(name), {counts.begin(), counts.end()}};
}

ChartPlot GroundPlot(const TimetableStatistics& statistics, const GroundSteps& steps, const HourRange& range,
                     std::optional<std::int32_t> stands) {
    ChartPlot plot;
    plot.title = "Aircraft on ground";
    plot.valuesTitle = "Aircraft";
    plot.at = steps.Places();
    if (steps.InOrderOfTime()) {
        plot.places = ChartPlaces::Time;
        plot.placesTitle = "Time";
        plot.first = range.first * kSecondsPerHour;
        plot.last = (range.last + 1) * kSecondsPerHour;
    } else {
        plot.places = ChartPlaces::Number;
        plot.placesTitle = "Row of the timetable";
        plot.first = 1;
        plot.last = statistics.total.arrivals + statistics.total.departures + 1;
    }
    plot.series.push_back(StepsOf(steps, 0, "All"));
    for (std::size_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        if (statistics.classes[code].maximum > 0)
            plot.series.push_back(StepsOf(steps, code, kAircraftClassNames[code]));
    }
    if (stands) plot.levels.push_back({"Stands", static_cast<double>(*stands)});
    return plot;
}

}  // namespace

GroundSteps::GroundSteps(std::int32_t rows) : stretch_(std::max(1, (rows + kMostSteps - 1) / kMostSteps)) {}

void GroundSteps::Add(const TimetableStatistics& statistics, std::int32_t aircraftClass,
                      std::int32_t seconds) {
    if (rows_ > 0 && seconds < lastSeconds_) inOrder_ = false;
    lastSeconds_ = seconds;
    if (rows_ % stretch_ == 0) {
        for (auto& counts : counts_) counts.push_back(0);
        seconds_.push_back(seconds);
        numbers_.push_back(rows_ + 1);
    }
    ++rows_;
    if (statistics.all.seen > counts_[0].back()) {
        seconds_.back() = seconds;
        numbers_.back() = rows_;
    }
    const auto reach = [this](std::size_t code, std::int32_t count) {
        counts_[code].back() = std::max(counts_[code].back(), count);
    };
    reach(0, statistics.all.seen);
    for (std::size_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        const GroundCount& count = statistics.classes[code];
        reach(code, code == static_cast<std::size_t>(aircraftClass) ? count.seen : count.current);
    }
}

std::vector<double> GroundSteps::Places() const {
    const std::vector<std::int32_t>& places = inOrder_ ? seconds_ : numbers_;
    return {places.begin(), places.end()};
}

std::string AskedAirports(const ReportHead& head) {
    std::string codes = RemoveAll(head.airports, ' ');
    if (codes.ends_with(',')) codes.pop_back();
    if (codes.starts_with(',')) codes.erase(0, 1);
    return codes;
}

ChartContent StatisticsChart(const TimetableStatistics& statistics, const GroundSteps& steps,
                             const ReportHead& head, std::optional<std::int32_t> stands) {
    const HourRange range = ShownHours(statistics, head);
    ChartContent content;
    content.title = Concat(AskedAirports(head), ", ", RemoveAll(head.day, '#'), " ", head.start, " - ",
                           head.end, " (", head.zone, ")");
    content.plots = {HoursPlot(statistics, range), GroundPlot(statistics, steps, range, stands)};
    return content;
}

}  // namespace orlo
