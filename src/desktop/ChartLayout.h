#pragma once

#include <QFont>
#include <QRectF>
#include <optional>
#include <vector>

#include "desktop/PlotBox.h"

namespace orlo {

// Where the parts of a chart are drawn. The chart must outlive it.
struct ChartBoxes {
    QRectF title;
    QRectF note;
    QRectF runways;
    std::vector<PlotBox> plots;
    double overflow = 0;  // how much higher the chart would have to be to show all lying bars
};

QFont TitleFont(const QFont& font);

// Any room does, but one that is too small shows little. `scroll` counts from 0 to the overflow; without it
// the lying bars are as low as it takes to show all.
ChartBoxes LayOutChart(const ChartData& chart, const QFont& font, const QRectF& room,
                       std::optional<double> scroll);

// The height at which the chart is seen best at this width, with all lying bars.
double NaturalHeight(const ChartData& chart, const QFont& font, double width);

}  // namespace orlo
