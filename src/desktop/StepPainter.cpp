#include "desktop/StepPainter.h"

#include <QVector>
#include <algorithm>
#include <cmath>

#include "desktop/ColumnRanges.h"

namespace orlo {
namespace {

constexpr double kThickness = 2;
constexpr double kTallest = 6;  // pixels of a column that a gap between dashes may hide

// The columns of the device's own pixels across a plot.
struct Columns {
    Columns(const QPainter& painter, const PlotBox& box)
        : width(1 / painter.device()->devicePixelRatioF()),
          count(static_cast<int>(std::ceil(box.inner.width() / width))) {}

    double width;  // in the units of the painter
    int count;
};

// Of each place the column.
std::vector<int> ColumnsOf(const PlotBox& box, const Columns& columns) {
    std::vector<int> of(box.plot.PlaceCount());
    const double scale = columns.count / (box.facts.last - box.facts.first);
    for (std::size_t i = 0; i < of.size(); ++i) {
        const double column = (StartOf(box.plot, i) - box.facts.first) * scale;
        of[i] = static_cast<int>(std::clamp(std::floor(column), -1.0, static_cast<double>(columns.count)));
    }
    return of;
}

std::vector<double> ValuesOf(const PlotBox& box, std::size_t series) {
    std::vector<double> values(box.plot.PlaceCount());
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = DrawnValue(box.plot.series[series], i);
    return values;
}

double Snapped(double at, double pixel) {
    return std::round(at / pixel) * pixel;
}

// One rectangle for as many columns as look alike.
QVector<QRectF> LineRects(const PlotBox& box, const Columns& columns, const std::vector<ColumnRange>& ranges,
                          std::span<const int> dashes) {
    QVector<QRectF> rects;
    const double thickness = std::max(1.0, std::round(kThickness / columns.width)) * columns.width;
    for (int i = 0; i < columns.count; ++i) {
        const ColumnRange& range = ranges[static_cast<std::size_t>(i)];
        if (range.Empty()) continue;
        const double top = Snapped(box.Y(range.greatest) - thickness / 2, columns.width);
        const double height = Snapped(box.Y(range.least) + thickness / 2, columns.width) - top;
        if (height <= kTallest && !DashDrawn(dashes, static_cast<int>(i * columns.width))) continue;
        const double left = box.inner.left() + i * columns.width;
        if (!rects.isEmpty()) {
            QRectF& last = rects.last();
            if (last.top() == top && last.height() == height &&
                std::abs(last.right() - left) < columns.width / 2) {
                last.setRight(left + columns.width);
                continue;
            }
        }
        rects.append(QRectF(left, top, columns.width, height));
    }
    return rects;
}

void FillRects(QPainter& painter, const QVector<QRectF>& rects, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRects(rects);
    painter.restore();
}

}  // namespace

// The first series last, so that nothing covers it.
void DrawSteps(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    if (box.facts.steps.empty()) return;
    const Columns columns(painter, box);
    const std::vector<int> places = ColumnsOf(box, columns);
    for (auto series = box.facts.steps.rbegin(); series != box.facts.steps.rend(); ++series) {
        const std::vector<ColumnRange> ranges = ReduceSteps(places, ValuesOf(box, *series), columns.count);
        FillRects(painter, LineRects(box, columns, ranges, DashesOf(*series)),
                  SeriesColour(colours, *series));
    }
}

void DrawDenseBars(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    if (box.facts.bars.empty()) return;
    const Columns columns(painter, box);
    const std::vector<int> places = ColumnsOf(box, columns);
    for (auto series = box.facts.bars.rbegin(); series != box.facts.bars.rend(); ++series) {
        std::vector<double> values = ValuesOf(box, *series);
        for (std::size_t i = 0; box.facts.stacked && i < values.size(); ++i)
            values[i] = StackedValue(box.plot, box.facts, *series, i);
        const std::vector<ColumnRange> ranges = ReduceSteps(places, values, columns.count);
        QVector<QRectF> rects;
        for (int i = 0; i < columns.count; ++i) {
            const ColumnRange& range = ranges[static_cast<std::size_t>(i)];
            if (range.Empty() || range.greatest <= 0) continue;
            const double top = Snapped(box.Y(range.greatest), columns.width);
            rects.append(
                QRectF(box.inner.left() + i * columns.width, top, columns.width, box.inner.bottom() - top));
        }
        FillRects(painter, rects, SeriesColour(colours, *series));
    }
}

void DrawLineSample(QPainter& painter, const QPointF& from, double length, std::size_t series,
                    const ChartColours& colours) {
    const std::span<const int> dashes = DashesOf(series);
    QVector<QRectF> rects;
    for (int i = 0; i < static_cast<int>(length); ++i) {
        if (DashDrawn(dashes, i))
            rects.append(
                QRectF(std::round(from.x()) + i, std::round(from.y() - kThickness / 2), 1, kThickness));
    }
    FillRects(painter, rects, SeriesColour(colours, series));
}

}  // namespace orlo
