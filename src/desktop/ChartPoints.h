#pragma once

#include <QPolygonF>
#include <QString>
#include <optional>

#include "desktop/ChartLayout.h"

namespace orlo {

// One value of a chart, or one of its runways (the plot and the series are 0 then).
struct ChartPoint {
    std::size_t plot = 0;
    std::size_t series = 0;
    std::size_t place = 0;

    bool operator==(const ChartPoint&) const = default;
};

// The nearest value to a place on the screen; none beside the plots and away from all runways.
std::optional<ChartPoint> PointUnder(const ChartData& chart, const ChartBoxes& boxes, const QFont& font,
                                     const QPointF& at);

// Around the value: its bar, a square on its line, or the runway. A bar can lie beyond what is scrolled into
// sight. A point that the chart doesn't have has an empty one.
QPolygonF MarkOf(const ChartData& chart, const ChartBoxes& boxes, const QFont& font, const ChartPoint& point);

bool HasPoints(const ChartData& chart);
// The point so many places further along the axis, and so many series further down, through all plots; what
// lies beyond an end is the end. From a point that the chart doesn't have it goes as from its first one; the
// chart has one at least.
ChartPoint Moved(const ChartData& chart, const ChartPoint& from, std::ptrdiff_t places,
                 std::ptrdiff_t series);

// What the tip says, in lines: the place, and the series with its value.
QString PointText(const ChartData& chart, const ChartPoint& point);

}  // namespace orlo
