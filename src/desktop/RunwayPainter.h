#pragma once

#include <QPainter>
#include <QRectF>

#include "desktop/ChartStyle.h"
#include "forms/Chart.h"

namespace orlo {

// With the numbers at their ends, closed ends marked, a north arrow, a scale, and a legend of the surfaces.
void DrawRunways(QPainter& painter, const ChartContent& content, const QRectF& room,
                 const ChartColours& colours);

}  // namespace orlo
