#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <vector>

#include "desktop/ChartStyle.h"
#include "forms/Chart.h"

namespace orlo {

// A runway's place on the screen: its middle line from the first end to the second.
struct RunwayPlace {
    QPointF ends[2];
    double width = 0;
};

// By runway: to scale and turned as they lie, north up, all around the middle of the room; those of one
// direction beside each other, since what is between them isn't known.
std::vector<RunwayPlace> PlaceRunways(const ChartContent& content, const QFont& font, const QRectF& room);

// With the numbers at their ends, closed ends marked, a north arrow, a scale, and a legend of the surfaces.
void DrawRunways(QPainter& painter, const ChartContent& content, const QRectF& room,
                 const ChartColours& colours);

}  // namespace orlo
