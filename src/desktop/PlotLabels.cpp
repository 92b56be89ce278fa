#include "desktop/PlotLabels.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/AxisSteps.h"
#include "desktop/ScreenText.h"
#include "desktop/StepPainter.h"

namespace orlo {
namespace {

constexpr double kDot = 3.5;  // the radius of a peak's mark

// A text on a piece of ground, so that no line crosses it, moved to stay between the axes.
void DrawOnGround(QPainter& painter, const PlotBox& box, const ChartColours& colours, QPointF middle,
                  const QString& text) {
    const QFontMetricsF metrics(painter.font());
    QRectF room(0, 0, metrics.horizontalAdvance(text) + metrics.horizontalAdvance('0') * 0.6,
                metrics.height());
    room.moveCenter(middle);
    if (room.right() > box.inner.right()) room.moveRight(box.inner.right());
    if (room.left() < box.inner.left()) room.moveLeft(box.inner.left());
    if (room.top() < box.inner.top()) room.moveTop(box.inner.top());
    QColor ground = colours.ground;
    ground.setAlphaF(0.8F);
    painter.fillRect(room, ground);
    painter.setPen(colours.text);
    painter.drawText(room, Qt::AlignCenter, text);
}

QPen LevelPen(const ChartColours& colours) {
    return QPen(colours.text, 1, Qt::DashLine);
}

bool IsShown(const PlotBox& box, const ChartLevel& level) {
    return level.value >= 0 && level.value <= box.top;
}

bool PeakIsLeft(const PlotBox& box) {
    if (box.facts.steps.empty() || box.plot.PlaceCount() == 0) return false;
    return box.X(StartOf(box.plot, box.facts.peaks[box.facts.steps.front()])) < box.inner.center().x();
}

QString PeakPlace(const ChartPlot& plot, std::size_t place) {
    if (plot.places == ChartPlaces::Time) return ClockText(plot.at[place]);
    return ShownText(plot.PlaceText(place));
}

void DrawStepPeak(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    const std::size_t series = box.facts.steps.front();
    const std::size_t place = box.facts.peaks[series];
    const double value = DrawnValue(box.plot.series[series], place);
    const double x = box.X(StartOf(box.plot, place));
    if (value <= 0 || x < box.inner.left() || x > box.inner.right()) return;
    const QPointF peak(x, box.Y(value));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colours.ground, 1));
    painter.setBrush(SeriesColour(colours, series));
    painter.drawEllipse(peak, kDot, kDot);
    painter.restore();
    const double line = QFontMetricsF(painter.font()).height();
    DrawOnGround(painter, box, colours, peak - QPointF(0, line * 0.5 + kDot + 1),
                 ValueText(value, box.plot.decimals) + " at " + PeakPlace(box.plot, place));
}

void DrawBarPeak(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    if (box.Dense()) return;
    QRectF highest;
    double greatest = 0;
    for (std::size_t place = 0; place < box.plot.PlaceCount(); ++place) {
        for (const std::size_t series : box.facts.bars) {
            const double value = box.facts.stacked ? StackedValue(box.plot, box.facts, series, place)
                                                   : DrawnValue(box.plot.series[series], place);
            if (value <= greatest) continue;
            greatest = value;
            highest = box.Bar(series, place);
        }
    }
    if (greatest <= 0) return;
    const double line = QFontMetricsF(painter.font()).height();
    DrawOnGround(painter, box, colours, QPointF(highest.center().x(), highest.top() - line * 0.55),
                 ValueText(greatest, box.plot.decimals));
}

}  // namespace

std::vector<double> Spread(std::vector<double> at, double distance, double top, double bottom) {
    for (std::size_t i = 0; i < at.size(); ++i) at[i] = std::max(at[i], i == 0 ? top : at[i - 1] + distance);
    double limit = bottom;
    for (std::size_t i = at.size(); i-- > 0; limit -= distance) at[i] = std::min(at[i], limit);
    return at;
}

void DrawLegend(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    const QFontMetricsF metrics(painter.font());
    const double line = metrics.height();
    const double digit = metrics.horizontalAdvance('0');
    const double sample = SampleWidth(metrics) - digit;
    const std::vector<std::size_t> named = SeriesOfLegend(box.facts, box.namesAtLines);
    const std::vector<LegendItem> items = LegendOf(box.plot, named, metrics, box.legend.width());
    double end = 0;  // of the last name
    for (std::size_t i = 0; i < items.size(); ++i) {
        painter.setPen(colours.text);
        if (items[i].line >= box.legendLines) {  // the others have no room
            const double y = box.legend.top() + line * 1.2 * (box.legendLines - 1) + line * 0.1;
            if (i > 0) painter.drawText(QRectF(end, y, line * 2, line), Qt::AlignLeft, QChar(0x2026));
            return;
        }
        const ChartSeries& series = box.plot.series[named[i]];
        const QPointF at = box.legend.topLeft() + QPointF(items[i].x, line * 1.2 * items[i].line);
        const double middle = at.y() + line * 0.6;
        const QRectF room(at.x() + SampleWidth(metrics), middle - line, box.legend.width(), line * 2);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, ShownText(series.name));
        end = room.left() + metrics.horizontalAdvance(ShownText(series.name)) + digit / 2;
        if (series.kind == SeriesKind::Bars) {
            FillAsSeries(painter,
                         QRectF(std::round(at.x()), std::round(middle - line * 0.35), std::round(sample),
                                std::round(line * 0.7)),
                         named[i], box.Fill(), colours);
        } else {
            DrawLineSample(painter, QPointF(at.x(), middle), sample, named[i], colours);
        }
    }
}

// A level counts for a line of its own.
void DrawNamesAtLines(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    if (box.plot.PlaceCount() == 0) return;
    struct LineName {
        double y;
        QString text;
        const std::size_t* series;  // null for a level
    };
    std::vector<LineName> names;
    for (const std::size_t& series : box.facts.steps) {
        const ChartSeries& line = box.plot.series[series];
        names.push_back({box.Y(DrawnValue(line, box.plot.PlaceCount() - 1)), ShownText(line.name), &series});
    }
    for (const ChartLevel& level : box.plot.levels) {
        if (IsShown(box, level)) names.push_back({box.Y(level.value), LevelText(box.plot, level), nullptr});
    }
    std::stable_sort(names.begin(), names.end(),
                     [](const LineName& a, const LineName& b) { return a.y < b.y; });
    const QFontMetricsF metrics(painter.font());
    std::vector<double> heights;
    for (const LineName& name : names) heights.push_back(name.y);
    heights = Spread(heights, metrics.height() * 0.95, box.inner.top(), box.inner.bottom());
    const double gap = metrics.horizontalAdvance('0') * 0.5;
    const double sample = SampleWidth(metrics) - gap * 2;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QPointF from(box.inner.right() + gap, heights[i]);
        if (names[i].series != nullptr) {
            DrawLineSample(painter, from, sample, *names[i].series, colours);
        } else {
            painter.setPen(LevelPen(colours));
            const double y = std::floor(from.y()) + 0.5;
            painter.drawLine(QPointF(from.x(), y), QPointF(from.x() + sample, y));
        }
        painter.setPen(colours.text);
        const QRectF room(from.x() + sample + gap, from.y() - metrics.height(), metrics.height() * 20,
                          metrics.height() * 2);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, names[i].text);
    }
}

void DrawLevels(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    const double line = QFontMetricsF(painter.font()).height();
    for (const ChartLevel& level : box.plot.levels) {
        if (!IsShown(box, level)) continue;
        painter.setPen(LevelPen(colours));
        if (box.facts.lying) {
            const double x = std::floor(box.inner.left() + box.Length(level.value)) + 0.5;
            painter.drawLine(QPointF(x, box.inner.top()), QPointF(x, box.inner.bottom()));
            DrawOnGround(painter, box, colours, QPointF(x, box.inner.bottom() - line),
                         LevelText(box.plot, level));
            continue;
        }
        const double y = std::floor(box.Y(level.value)) + 0.5;
        painter.drawLine(QPointF(box.inner.left(), y), QPointF(box.inner.right(), y));
        if (box.namesAtLines) continue;
        const double x = PeakIsLeft(box) ? box.inner.right() : box.inner.left();
        DrawOnGround(painter, box, colours, QPointF(x, y - line * 0.6), LevelText(box.plot, level));
    }
}

void DrawPeaks(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    if (box.plot.PlaceCount() == 0) return;
    if (!box.facts.bars.empty()) DrawBarPeak(painter, box, colours);
    if (!box.facts.steps.empty()) DrawStepPeak(painter, box, colours);
}

}  // namespace orlo
