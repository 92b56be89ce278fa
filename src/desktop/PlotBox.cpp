#include "desktop/PlotBox.h"

#include <algorithm>
#include <cmath>

#include "desktop/AxisSteps.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr double kSlotShare = 0.8;       // of a place that its bars take
constexpr double kNarrowestSlot = 3;     // pixels in which a bar is still a bar
constexpr double kRowGap = 0.5;          // lines
constexpr double kBarPitch = 0.85;       // lines
constexpr double kNarrowestHatched = 3;  // pixels of a bar that shows a hatch
constexpr double kLegendGap = 2.5;       // characters

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

BarFill PlotBox::Fill() const {
    return Dense() || BarThickness() < kNarrowestHatched ? BarFill::Plain : BarFill::Hatched;
}

QString PlotBox::MarkText(double value) const {
    const int needed = step < 0.1 ? static_cast<int>(std::ceil(-std::log10(step) - 1e-9)) : 0;
    return ValueText(value, std::max(needed, step < 1 ? 1 : 0));
}

double PlotBox::BarThickness() const {
    const double bars =
        facts.stacked ? 1.0 : static_cast<double>(std::max<std::size_t>(facts.bars.size(), 1));
    if (facts.lying) return row * kBarPitch / (kRowGap + kBarPitch * bars);
    return SlotWidth() * kSlotShare / bars;
}

// From the start of its place.
double PlotBox::BarStart(std::size_t series) const {
    const double slot = facts.lying ? row : SlotWidth();
    const double thickness = BarThickness();
    if (facts.stacked) return (slot - thickness) / 2;
    const auto before = std::find(facts.bars.begin(), facts.bars.end(), series) - facts.bars.begin();
    const auto bars = static_cast<double>(facts.bars.size());
    return (slot - thickness * bars) / 2 + thickness * static_cast<double>(before);
}

QRectF PlotBox::Bar(std::size_t series, std::size_t place) const {
    const double value = DrawnValue(plot.series[series], place);
    const double end = facts.stacked ? StackedValue(plot, facts, series, place) : value;
    const double start = BarStart(series);
    const double thickness = BarThickness();
    if (facts.lying) {
        const double y = inner.top() - scroll + static_cast<double>(place) * row + start;
        const double from = std::round(Length(end - value));
        return QRectF(inner.left() + from, std::round(y), std::round(Length(end)) - from,
                      std::max(1.0, std::round(thickness) - 1));
    }
    const double left = std::round(X(static_cast<double>(place)) + start);
    const double right = std::round(X(static_cast<double>(place)) + start + thickness);
    const double y = std::round(Y(end));
    return QRectF(left, y, std::max(1.0, right - left), std::round(Y(end - value)) - y);
}

double SampleWidth(const QFontMetricsF& metrics) {
    return std::round(metrics.height() * 1.8);
}

std::vector<LegendItem> LegendOf(const ChartPlot& plot, const std::vector<std::size_t>& series,
                                 const QFontMetricsF& metrics, double width) {
    std::vector<double> widths;
    for (const std::size_t i : series)
        widths.push_back(SampleWidth(metrics) + metrics.horizontalAdvance(ShownText(plot.series[i].name)) +
                         kLegendGap * metrics.horizontalAdvance('0'));
    return WrapLegend(widths, width);
}

QString LevelText(const ChartPlot& plot, const ChartLevel& level) {
    return ShownText(level.name) + ' ' + ValueText(level.value, plot.decimals);
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
