#include "desktop/ChartLayout.h"

#include <algorithm>
#include <cmath>

#include "desktop/AxisSteps.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr double kNaturalPlotHeight = 13;   // lines
constexpr double kLeastAxes = 4;            // lines that a legend leaves them
constexpr double kNaturalAspect = 0.8;      // of runways, height to width
constexpr double kLargestShare = 0.3;       // of the width that names beside a plot take
constexpr double kLeastWidthForNames = 45;  // characters
constexpr double kMarkDistance = 2.5;       // lines between two marks of the values, at least
constexpr double kLyingMarkDistance = 8;    // characters

// The fixed measures of a chart: lines and characters of its font.
struct Measures {
    explicit Measures(const QFont& font) : metrics(font), title(TitleFont(font)), line(metrics.height()) {}

    double Character() const { return metrics.horizontalAdvance('0'); }
    double Width(std::string_view text) const { return metrics.horizontalAdvance(ShownText(text)); }

    QFontMetricsF metrics;
    QFontMetricsF title;
    double line;
};

double NoteHeight(const ChartContent& content, const Measures& measures, double width) {
    if (content.note.empty()) return 0;
    const QRectF room(0, 0, std::max(width, 1.0), 1e6);
    return measures.metrics.boundingRect(room, Qt::TextWordWrap, ShownText(content.note)).height() +
           measures.line * 0.3;
}

double TitleHeight(const ChartContent& content, const Measures& measures) {
    return content.title.empty() ? 0 : measures.title.height() * 1.3;
}

// What stands above and below the axes of a plot.
struct PlotHeads {
    double title = 0;
    double legend = 0;
    double gap = 0;  // above upright axes, for half of the uppermost mark's text
    double marks = 0;
    double placesTitle = 0;
    double below = 0;

    // With the distance to the next plot.
    double Sum() const { return title + legend + gap + marks + placesTitle + below; }
};

PlotHeads HeadsOf(const PlotBox& box, const Measures& measures) {
    PlotHeads heads;
    heads.title = box.plot.title.empty() ? measures.line * 0.5 : measures.line * 1.3;
    if (box.legendLines > 0) heads.legend = measures.line * (1.2 * box.legendLines + 0.3);
    if (!box.facts.lying) heads.gap = measures.line * 0.4;
    heads.marks = measures.line * 1.2;
    if (!box.plot.placesTitle.empty() || box.facts.lying) heads.placesTitle = measures.line * 1.1;
    heads.below = measures.line * 0.3;
    return heads;
}

// All of them where the axes have room enough beside; in a small window the values are more than their names.
int LegendLines(PlotBox box, const Measures& measures, double width, double height) {
    const std::vector<std::size_t> named = SeriesOfLegend(box.facts, box.namesAtLines);
    box.legendLines = LinesOf(LegendOf(box.plot, named, measures.metrics, width));
    double least = kLeastAxes * measures.line;
    if (box.facts.lying)
        least = std::min(least,
                         NaturalRow(box.facts, measures.line) * static_cast<double>(box.plot.names.size()));
    while (box.legendLines > 0 && height - HeadsOf(box, measures).Sum() < least - 0.5) --box.legendLines;
    return box.legendLines;
}

// The axis of the values: a mark at its upper end, and above the greatest value room for a text of a line.
void SetAxis(PlotBox& box, const Measures& measures) {
    const bool lying = box.facts.lying;
    const double length = lying ? box.inner.width() : box.inner.height();
    const double distance = lying ? kLyingMarkDistance * measures.Character() : kMarkDistance * measures.line;
    const int most = std::clamp(static_cast<int>(length / distance), 1, 10);
    const double above = lying ? 0 : std::min(0.25, measures.line * 1.3 / std::max(length, 1.0));
    const double reach = box.facts.greatest > 0 ? box.facts.greatest / (1 - above) : 1;
    box.step = ValueStep(reach, most, box.facts.whole);
    box.top = std::max(1.0, std::ceil(reach / box.step - 1e-9)) * box.step;
}

double ValuesWidth(const PlotBox& box, const Measures& measures) {
    const double marks = std::max(measures.metrics.horizontalAdvance(box.MarkText(box.top)),
                                  measures.metrics.horizontalAdvance(box.MarkText(box.top - box.step)));
    const double title = box.plot.valuesTitle.empty() ? 0 : measures.line * 1.1;
    return marks + title + measures.Character();
}

double NamesWidth(const PlotBox& box, const Measures& measures) {
    double widest = 0;
    for (const std::size_t series : box.facts.steps)
        widest = std::max(widest, measures.Width(box.plot.series[series].name));
    for (const ChartLevel& level : box.plot.levels)
        widest = std::max(widest, measures.metrics.horizontalAdvance(LevelText(box.plot, level)));
    return widest + SampleWidth(measures.metrics) + measures.Character();
}

bool NamesFitAtLines(const PlotFacts& facts, const PlotBox& box, const Measures& measures, double width,
                     double height) {
    if (facts.steps.empty() || width < kLeastWidthForNames * measures.Character()) return false;
    if (NamesWidth(box, measures) > width * kLargestShare) return false;
    return height > (static_cast<double>(facts.steps.size() + box.plot.levels.size()) + 4) * measures.line;
}

// Left and right edges, the same for all plots, so that equal places stand below each other.
void PlaceSides(ChartBoxes& boxes, const Measures& measures, const QRectF& room) {
    double left = 0;
    double right = measures.Character();
    for (const PlotBox& box : boxes.plots) {
        if (box.facts.lying) {
            const double longest =
                box.plot.names.empty() ? 0 : measures.Width(box.plot.names[box.facts.longestName]);
            left = std::max(
                left, std::min(longest * 1.1, room.width() * kLargestShare * 1.3) + measures.Character());
            right = std::max(right, measures.metrics.horizontalAdvance(
                                        ValueText(box.facts.greatest + 0.1, box.plot.decimals)) +
                                        measures.Character());
            continue;
        }
        left = std::max(left, ValuesWidth(box, measures));
        if (box.namesAtLines) right = std::max(right, NamesWidth(box, measures));
        if (box.plot.places != ChartPlaces::Named)
            right = std::max(right, measures.metrics.horizontalAdvance("00:00") * 0.6);
    }
    for (PlotBox& box : boxes.plots) {
        box.inner.setLeft(std::round(room.left() + std::min(left, room.width() / 2)));
        box.inner.setRight(std::round(std::max(box.inner.left() + 1, room.right() - right)));
        box.placesTitle.setLeft(box.inner.left());
        box.placesTitle.setRight(box.inner.right());
    }
}

void PlaceRows(PlotBox& box, const Measures& measures, std::optional<double> scroll, ChartBoxes& boxes) {
    const auto count = static_cast<double>(std::max<std::size_t>(box.plot.names.size(), 1));
    const double natural = NaturalRow(box.facts, measures.line);
    if (scroll) boxes.overflow = std::max(0.0, std::ceil(count * natural - box.inner.height()));
    box.row = boxes.overflow > 0 ? natural : std::min(natural * 1.4, box.inner.height() / count);
    box.scroll = std::clamp(scroll.value_or(0), 0.0, boxes.overflow);
}

void PlacePlots(ChartBoxes& boxes, const Measures& measures, const QRectF& room,
                std::optional<double> scroll) {
    const double share = room.height() / static_cast<double>(boxes.plots.size());
    double top = room.top();
    for (PlotBox& box : boxes.plots) {
        box.namesAtLines = NamesFitAtLines(box.facts, box, measures, room.width(), share);
        box.legendLines = LegendLines(box, measures, room.width(), share);
        const PlotHeads heads = HeadsOf(box, measures);
        box.title = QRectF(room.left(), top, room.width(), heads.title);
        box.legend = QRectF(room.left(), box.title.bottom(), room.width(), heads.legend);
        // The marks of lying bars stand above them, so that they are seen while the rows are scrolled.
        const double above = box.facts.lying ? heads.marks + heads.placesTitle : heads.gap;
        const double innerTop = std::round(box.legend.bottom() + above);
        box.inner =
            QRectF(room.left(), innerTop, room.width(), std::max(1.0, std::round(share - heads.Sum())));
        const double placesTop = box.facts.lying ? box.legend.bottom() : box.inner.bottom() + heads.marks;
        box.placesTitle = QRectF(room.left(), placesTop, room.width(), heads.placesTitle);
        if (!box.facts.lying) SetAxis(box, measures);
        top += share;
    }
    PlaceSides(boxes, measures, room);
    for (PlotBox& box : boxes.plots) {
        if (!box.facts.lying) continue;
        SetAxis(box, measures);
        PlaceRows(box, measures, scroll, boxes);
    }
}

}  // namespace

QFont TitleFont(const QFont& font) {
    QFont title = font;
    title.setBold(true);
    return title;
}

ChartBoxes LayOutChart(const ChartData& chart, const QFont& font, const QRectF& room,
                       std::optional<double> scroll) {
    const ChartContent& content = chart.content;
    const Measures measures(font);
    const double edge = std::min({measures.line * 0.6, room.width() / 4, room.height() / 4});
    QRectF left = room.adjusted(edge, edge, -edge, -edge);
    ChartBoxes boxes;
    boxes.title = QRectF(left.left(), left.top(), left.width(), TitleHeight(content, measures));
    const double note = std::min(NoteHeight(content, measures, left.width()), left.height() / 2);
    boxes.note = QRectF(left.left(), left.bottom() - note, left.width(), note);
    left.setTop(std::min(boxes.title.bottom(), boxes.note.top()));
    left.setBottom(boxes.note.top());
    if (!content.runways.empty()) boxes.runways = left;
    if (content.runways.empty() && content.plots.empty()) boxes.note.moveTop(boxes.title.bottom());
    if (content.plots.empty() || !content.runways.empty()) return boxes;
    for (std::size_t i = 0; i < content.plots.size(); ++i)
        boxes.plots.emplace_back(content.plots[i], chart.facts[i]);
    PlacePlots(boxes, measures, left, scroll);
    return boxes;
}

double NaturalHeight(const ChartData& chart, const QFont& font, double width) {
    const ChartContent& content = chart.content;
    const std::vector<PlotFacts>& facts = chart.facts;
    const Measures measures(font);
    const double inner = std::max(1.0, width - measures.line * 1.2);
    double height =
        measures.line * 1.2 + TitleHeight(content, measures) + NoteHeight(content, measures, inner);
    if (!content.runways.empty()) return std::ceil(height + inner * kNaturalAspect);
    for (std::size_t i = 0; i < content.plots.size(); ++i) {
        PlotBox box(content.plots[i], facts[i]);
        box.namesAtLines = NamesFitAtLines(facts[i], box, measures, inner, 1e6);
        box.legendLines = LegendLines(box, measures, inner, 1e6);
        height += HeadsOf(box, measures).Sum();
        const auto count = static_cast<double>(box.plot.names.size());
        height +=
            facts[i].lying ? NaturalRow(facts[i], measures.line) * count : kNaturalPlotHeight * measures.line;
    }
    return std::ceil(height);
}

}  // namespace orlo
