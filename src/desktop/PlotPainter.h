#pragma once

#include <QPainter>

#include "desktop/ChartLayout.h"
#include "desktop/ChartStyle.h"

namespace orlo {

// Draws one plot into its box: titles, legend, axes, bars, steps, levels and the labels at lines and peak.
void DrawPlot(QPainter& painter, const PlotBox& box, const ChartColours& colours);

}  // namespace orlo
