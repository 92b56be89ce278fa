#include "desktop/ChartPoints.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/AxisSteps.h"
#include "desktop/RunwayLayout.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr double kReach = 12;       // pixels from a runway that still count for it
constexpr double kColumnReach = 1;  // pixels beside the pointer in which a step line's values are looked at
constexpr double kHalfMark = 5;     // of a point on a line
constexpr double kAround = 2;       // pixels between a bar or runway and its mark
constexpr double kInfinity = std::numeric_limits<double>::infinity();

double DistanceToLine(const QPointF& at, const QPointF& from, const QPointF& to) {
    const QPointF way = to - from;
    const double square = QPointF::dotProduct(way, way);
    const double share = square > 0 ? std::clamp(QPointF::dotProduct(at - from, way) / square, 0.0, 1.0) : 0;
    const QPointF apart = at - (from + way * share);
    return std::hypot(apart.x(), apart.y());
}

std::optional<ChartPoint> RunwayUnder(const ChartData& chart, const ChartBoxes& boxes, const QFont& font,
                                      const QPointF& at) {
    std::optional<ChartPoint> found;
    double nearest = kReach;
    const std::vector<RunwayPlace> places = LayOutRunways(chart.content, font, boxes.runways).places;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double distance = DistanceToLine(at, places[i].ends[0], places[i].ends[1]);
        if (distance > nearest) continue;
        nearest = distance;
        found = ChartPoint{0, 0, i};
    }
    return found;
}

struct Places {
    std::size_t first = 0;
    std::size_t end = 0;
};

// The places that the pointer may mean.
Places PlacesUnder(const PlotBox& box, const QPointF& at) {
    const std::size_t count = box.plot.PlaceCount();
    if (count == 0) return {};
    const double perPixel = (box.facts.last - box.facts.first) / box.inner.width();
    const double value = box.facts.first + (at.x() - box.inner.left()) * perPixel;
    if (box.plot.places == ChartPlaces::Named) {
        const double place = box.facts.lying ? (at.y() - box.inner.top() + box.scroll) / box.row : value;
        if (place < 0 || place >= static_cast<double>(count)) return {};
        const auto first = static_cast<std::size_t>(place);
        if (box.facts.lying || !box.Dense()) return {first, first + 1};
        return {first, std::min(count, static_cast<std::size_t>(place + std::max(1.0, perPixel)))};
    }
    const auto& all = box.plot.at;
    auto first = std::upper_bound(all.begin(), all.end(), value - kColumnReach * perPixel);
    const auto end = std::upper_bound(first, all.end(), value + kColumnReach * perPixel);
    if (first != all.begin()) --first;  // its value holds up to here
    return {static_cast<std::size_t>(first - all.begin()), static_cast<std::size_t>(end - all.begin())};
}

// How far the pointer is from what is drawn of a value; above all lines, bars count from where they stand.
double DistanceTo(const PlotBox& box, std::size_t series, std::size_t place, const QPointF& at) {
    const bool bar = box.plot.series[series].kind == SeriesKind::Bars;
    if (!bar || box.Dense()) {
        const double value = bar && box.facts.stacked ? StackedValue(box.plot, box.facts, series, place)
                                                      : DrawnValue(box.plot.series[series], place);
        return std::abs(at.y() - box.Y(value));
    }
    const QRectF shown = box.Bar(series, place);
    const bool alongUp = box.facts.stacked != box.facts.lying;  // which way one bar follows the other
    const double from = alongUp ? shown.top() : shown.left();
    const double to = alongUp ? shown.bottom() : shown.right();
    const double pointer = alongUp ? at.y() : at.x();
    return std::max({0.0, from - pointer, pointer - to});
}

QString RunwayText(const ChartContent& content, const ChartRunway& runway) {
    const QString unit = ' ' + ShownText(content.lengthUnit);
    QStringList lines;
    lines << ShownText(runway.ends[0].number) + '/' + ShownText(runway.ends[1].number);
    lines << QString::number(runway.length) + unit +
                 (runway.width > 0 ? " by " + QString::number(runway.width) + unit : QString());
    if (!runway.surface.empty()) lines << ShownText(runway.surface);
    for (const RunwayEnd& end : runway.ends) {
        if (end.closed) lines << ShownText(end.number) + " closed";
    }
    return lines.join('\n');
}

QString Named(const std::string& title, const QString& text, const QString& between) {
    return title.empty() ? text : ShownText(title) + between + text;
}

bool Exists(const ChartData& chart, const ChartPoint& point) {
    const ChartContent& content = chart.content;
    if (!content.runways.empty())
        return point.plot == 0 && point.series == 0 && point.place < content.runways.size();
    return point.plot < content.plots.size() && point.series < content.plots[point.plot].series.size() &&
           point.place < content.plots[point.plot].PlaceCount();
}

std::size_t MovedWithin(std::size_t from, std::ptrdiff_t by, std::size_t count) {
    const auto last = static_cast<std::ptrdiff_t>(count) - 1;
    const auto at = static_cast<std::ptrdiff_t>(std::min(from, count - 1));
    // Without an overflow, also by a very long way.
    if (by > last - at) return count - 1;
    return static_cast<std::size_t>(by < -at ? 0 : at + by);
}

// The plots that have values, with their series one after the other.
std::vector<ChartPoint> AllSeries(const ChartData& chart) {
    std::vector<ChartPoint> all;
    for (std::size_t plot = 0; plot < chart.content.plots.size(); ++plot) {
        if (chart.content.plots[plot].PlaceCount() == 0) continue;
        for (std::size_t series = 0; series < chart.content.plots[plot].series.size(); ++series)
            all.push_back({plot, series, 0});
    }
    return all;
}

// The place of another plot with the same place on the axis, or, where the axes differ, at the same share.
std::size_t SamePlace(const ChartData& chart, const ChartPoint& from, std::size_t plot) {
    const ChartPlot& to = chart.content.plots[plot];
    if (plot == from.plot) return from.place;
    const PlotFacts& old = chart.facts[from.plot];
    const PlotFacts& facts = chart.facts[plot];
    const double share =
        (StartOf(chart.content.plots[from.plot], from.place) - old.first) / (old.last - old.first);
    const double at = facts.first + share * (facts.last - facts.first);
    if (to.places == ChartPlaces::Named)
        return std::min(to.names.size() - 1, static_cast<std::size_t>(std::max(at, 0.0)));
    const auto next = std::upper_bound(to.at.begin(), to.at.end(), at);
    return next == to.at.begin() ? 0 : static_cast<std::size_t>(next - to.at.begin() - 1);
}

}  // namespace

std::optional<ChartPoint> PointUnder(const ChartData& chart, const ChartBoxes& boxes, const QFont& font,
                                     const QPointF& at) {
    if (!chart.content.runways.empty()) return RunwayUnder(chart, boxes, font, at);
    for (std::size_t plot = 0; plot < boxes.plots.size(); ++plot) {
        const PlotBox& box = boxes.plots[plot];
        if (!box.inner.adjusted(0, 0, 1, 1).contains(at)) continue;
        std::optional<ChartPoint> found;
        double nearest = kInfinity;
        const Places places = PlacesUnder(box, at);
        for (std::size_t place = places.first; place < places.end; ++place) {
            for (std::size_t series = 0; series < box.plot.series.size(); ++series) {
                const double distance = DistanceTo(box, series, place, at);
                if (!(distance < nearest)) continue;
                nearest = distance;
                found = ChartPoint{plot, series, place};
            }
        }
        return found;
    }
    return std::nullopt;
}

QPolygonF MarkOf(const ChartData& chart, const ChartBoxes& boxes, const QFont& font,
                 const ChartPoint& point) {
    if (!Exists(chart, point)) return {};
    if (!chart.content.runways.empty()) {
        const RunwayPlace place = LayOutRunways(chart.content, font, boxes.runways).places[point.place];
        const QPointF way = place.ends[1] - place.ends[0];
        const double length = std::hypot(way.x(), way.y());
        const QPointF unit = length > 0 ? way / length : QPointF(1, 0);
        const QPointF beside = QPointF(-unit.y(), unit.x()) * (place.width / 2 + kAround);
        const QPointF beyond = unit * kAround;
        return QPolygonF({place.ends[0] - beyond - beside, place.ends[1] + beyond - beside,
                          place.ends[1] + beyond + beside, place.ends[0] - beyond + beside});
    }
    const PlotBox& box = boxes.plots[point.plot];
    const ChartSeries& series = box.plot.series[point.series];
    if (series.kind == SeriesKind::Bars && !box.Dense())
        return box.Bar(point.series, point.place).adjusted(-kAround, -kAround, kAround, kAround);
    const double start = StartOf(box.plot, point.place);
    const double end = EndOf(box.plot, box.facts, point.place);
    const double at = box.plot.places == ChartPlaces::Named ? (start + end) / 2 : start;
    const QPointF middle(std::clamp(box.X(at), box.inner.left(), box.inner.right()),
                         box.Y(DrawnValue(series, point.place)));
    return QRectF(middle.x() - kHalfMark, middle.y() - kHalfMark, 2 * kHalfMark, 2 * kHalfMark);
}

bool HasPoints(const ChartData& chart) {
    return !chart.content.runways.empty() || !AllSeries(chart).empty();
}

ChartPoint Moved(const ChartData& chart, const ChartPoint& from, std::ptrdiff_t places,
                 std::ptrdiff_t series) {
    if (!chart.content.runways.empty())
        return {0, 0, MovedWithin(from.place, places, chart.content.runways.size())};
    const std::vector<ChartPoint> all = AllSeries(chart);
    const ChartPoint start = Exists(chart, from) ? from : all.front();
    const auto now = std::find(all.begin(), all.end(), ChartPoint{start.plot, start.series, 0});
    ChartPoint to = all[MovedWithin(static_cast<std::size_t>(now - all.begin()), series, all.size())];
    to.place =
        MovedWithin(SamePlace(chart, start, to.plot), places, chart.content.plots[to.plot].PlaceCount());
    return to;
}

QString PointText(const ChartData& chart, const ChartPoint& point) {
    if (!Exists(chart, point)) return {};
    if (!chart.content.runways.empty()) return RunwayText(chart.content, chart.content.runways[point.place]);
    const ChartPlot& plot = chart.content.plots[point.plot];
    const ChartSeries& series = plot.series[point.series];
    return Named(plot.placesTitle, ShownText(plot.PlaceText(point.place)), " ") + '\n' +
           Named(series.name, ValueText(DrawnValue(series, point.place), plot.decimals), ": ");
}

}  // namespace orlo
