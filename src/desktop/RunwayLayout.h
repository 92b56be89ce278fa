#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <string>
#include <vector>

#include "forms/Chart.h"

namespace orlo {

// A runway's place on the screen: its middle line from the first end to the second.
struct RunwayPlace {
    QPointF ends[2];
    double width = 0;
};

// A surface in the legend.
struct SurfaceItem {
    std::string surface;
    QRectF room;  // of its sample and name
};

struct RunwayLayout {
    // By runway: to scale and turned as they lie, north up, all around one middle; those of one direction
    // beside each other, since what is between them isn't known.
    std::vector<RunwayPlace> places;
    double scale = 0;  // pixels a unit of length; 0 where no runway has a length
    QRectF north;      // of the arrow
    QRectF scaleLine;  // of the scale and its text
    std::vector<SurfaceItem>
        surfaces;  // in the order of the runways, each once; empty rooms of those not shown
};

RunwayLayout LayOutRunways(const ChartContent& content, const QFont& font, const QRectF& room);

// What stands at an end.
QString EndText(const RunwayEnd& end);

}  // namespace orlo
