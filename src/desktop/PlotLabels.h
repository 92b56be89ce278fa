#pragma once

#include <QPainter>
#include <vector>

#include "desktop/ChartLayout.h"
#include "desktop/ChartStyle.h"

namespace orlo {

// The texts within and beside a plot.

void DrawLegend(QPainter& painter, const PlotBox& box, const ChartColours& colours);
// The names of step lines and levels at their right ends, each behind a piece of its line.
void DrawNamesAtLines(QPainter& painter, const PlotBox& box, const ChartColours& colours);
void DrawLevels(QPainter& painter, const PlotBox& box, const ChartColours& colours);
// The value and the place of the first step line's peak, and the value of the highest bar.
void DrawPeaks(QPainter& painter, const PlotBox& box, const ChartColours& colours);

// Moves the middles of labels apart that stand at these heights, ascending, so that each two are `distance`
// apart at least and all stay between `top` and `bottom` where these have room for them.
std::vector<double> Spread(std::vector<double> at, double distance, double top, double bottom);

}  // namespace orlo
