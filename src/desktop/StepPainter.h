#pragma once

#include <QPainter>

#include "desktop/ChartLayout.h"
#include "desktop/ChartStyle.h"

namespace orlo {

// What a plot with many places draws in columns of pixels, however many places there are.

void DrawSteps(QPainter& painter, const PlotBox& box, const ChartColours& colours);
// Bars without gaps, each as wide as its place.
void DrawDenseBars(QPainter& painter, const PlotBox& box, const ChartColours& colours);
// A piece of the series' line, such as in a legend.
void DrawLineSample(QPainter& painter, const QPointF& from, double length, std::size_t series,
                    const ChartColours& colours);

}  // namespace orlo
