#pragma once

#include <QPainter>

#include "desktop/ChartLayout.h"
#include "desktop/ChartStyle.h"

namespace orlo {

// Draws a chart in the painter's font on any device, a window's or a file's. `boxes` is what LayOutChart
// makes of the chart with this font. The ground is left as it is.
void DrawChart(QPainter& painter, const ChartData& chart, const ChartBoxes& boxes,
               const ChartColours& colours);

}  // namespace orlo
