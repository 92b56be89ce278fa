#include "desktop/PlotBox.h"

#include <algorithm>
#include <cmath>

#include "desktop/AxisSteps.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr double kSlotShare = 0.8;    // of a place that its bars take
constexpr double kNarrowestSlot = 3;  // pixels in which a bar is still a bar
constexpr double kRowGap = 0.5;       // lines
constexpr double kBarPitch = 0.85;    // lines

}  // namespace

double PlotBox::X(double at) const {
    return inner.left() + (at - facts.first) / (facts.last - facts.first) * inner.width();
}

double PlotBox::Y(double value) const {
    return inner.bottom() - value / top * inner.height();
}

double PlotBox::Length(double value) const {
    return value / top * inner.width();
}

bool PlotBox::Dense() const {
    return !facts.lying && (plot.places != ChartPlaces::Named || SlotWidth() < kNarrowestSlot);
}

double PlotBox::BarStart(std::size_t series, double slot, double& thickness) const {
    const double share =
        facts.lying
            ? 1 - kRowGap /
                      (kRowGap + kBarPitch * (facts.stacked ? 1.0 : static_cast<double>(facts.bars.size())))
            : kSlotShare;
    thickness = slot * share;
    double start = (slot - thickness) / 2;
    if (facts.stacked) return start;
    thickness /= static_cast<double>(facts.bars.size());
    for (const std::size_t bar : facts.bars) {
        if (bar == series) break;
        start += thickness;
    }
    return start;
}

QRectF PlotBox::Bar(std::size_t series, std::size_t place) const {
    const double value = DrawnValue(plot.series[series], place);
    const double end = facts.stacked ? StackedValue(plot, facts, series, place) : value;
    double thickness = 0;
    if (facts.lying) {
        const double start = BarStart(series, row, thickness);
        const double y = inner.top() - scroll + static_cast<double>(place) * row + start;
        const double from = std::round(Length(end - value));
        return QRectF(inner.left() + from, std::round(y), std::round(Length(end)) - from,
                      std::max(1.0, std::round(thickness) - 1));
    }
    const double start = BarStart(series, SlotWidth(), thickness);
    const double left = std::round(X(static_cast<double>(place)) + start);
    const double right = std::round(X(static_cast<double>(place)) + start + thickness);
    const double y = std::round(Y(end));
    return QRectF(left, y, std::max(1.0, right - left), std::round(Y(end - value)) - y);
}

double SampleWidth(const QFontMetricsF& metrics) {
    return std::round(metrics.height() * 1.8);
}

double LegendItemWidth(const ChartSeries& series, const QFontMetricsF& metrics) {
    return SampleWidth(metrics) + metrics.horizontalAdvance(ShownText(series.name)) +
           2.5 * metrics.horizontalAdvance('0');
}

int LegendLines(const ChartPlot& plot, const std::vector<std::size_t>& series, const QFontMetricsF& metrics,
                double width) {
    int lines = 1;
    double x = 0;
    for (const std::size_t i : series) {
        const double item = LegendItemWidth(plot.series[i], metrics);
        if (x > 0 && x + item > width) {
            ++lines;
            x = 0;
        }
        x += item;
    }
    return lines;
}

QString LevelText(const ChartLevel& level) {
    return ShownText(level.name) + ' ' + ValueText(level.value);
}

// A single series is told by the titles.
std::vector<std::size_t> SeriesOfLegend(const PlotFacts& facts, bool namesAtLines) {
    std::vector<std::size_t> named;
    if (facts.bars.size() + facts.steps.size() < 2) return named;
    named = facts.bars;
    if (!namesAtLines) named.insert(named.end(), facts.steps.begin(), facts.steps.end());
    return named;
}

double NaturalRow(const PlotFacts& facts, double line) {
    const double bars = facts.stacked ? 1 : static_cast<double>(std::max<std::size_t>(facts.bars.size(), 1));
    return (bars * kBarPitch + kRowGap) * line;
}

}  // namespace orlo
