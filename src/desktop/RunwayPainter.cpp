#include "desktop/RunwayPainter.h"

#include <QFontMetricsF>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/AxisSteps.h"
#include "desktop/RunwayLayout.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr double kScaleShare = 0.3;  // of the width that the scale takes at most

void DrawCross(QPainter& painter, QPointF middle, double size, const ChartColours& colours) {
    painter.setPen(QPen(colours.text, 2.5));
    painter.drawLine(middle - QPointF(size, size), middle + QPointF(size, size));
    painter.drawLine(middle - QPointF(size, -size), middle + QPointF(size, -size));
}

// The text of an end, along the runway and never upside down.
void DrawEnd(QPainter& painter, const RunwayPlace& place, int which, const RunwayEnd& end,
             const ChartColours& colours) {
    const QFontMetricsF metrics(painter.font());
    const QPointF at = place.ends[which];
    const QPointF outward = at - place.ends[1 - which];
    double angle = std::atan2(outward.y(), outward.x()) * 180 / std::numbers::pi;
    const bool turned = angle > 90.001 || angle <= -89.999;
    if (turned) angle += 180;
    if (end.closed) {
        const double length = std::hypot(outward.x(), outward.y());
        const QPointF in = length > 0 ? outward / length * place.width * 0.8 : QPointF();
        DrawCross(painter, at - in, place.width * 0.8, colours);
    }
    const QString text = EndText(end);
    const double width = metrics.horizontalAdvance(text) + 1;
    const double gap = metrics.height() * 0.4;
    painter.save();
    painter.translate(at);
    painter.rotate(angle);
    painter.setPen(colours.text);
    const QRectF room(turned ? -gap - width : gap, -metrics.height() / 2, width, metrics.height());
    painter.drawText(room, Qt::AlignCenter, text);
    painter.restore();
}

void DrawNorth(QPainter& painter, const QRectF& room, const ChartColours& colours) {
    const double line = QFontMetricsF(painter.font()).height();
    const QPointF tip(room.right() - line * 0.8, room.top() + line * 1.1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.text);
    painter.drawPolygon(QPolygonF({tip, tip + QPointF(line * 0.4, line * 1.3), tip + QPointF(0, line),
                                   tip + QPointF(-line * 0.4, line * 1.3)}));
    painter.setPen(colours.text);
    painter.drawText(QRectF(tip.x() - line, room.top(), line * 2, line), Qt::AlignCenter, "N");
}

void DrawScale(QPainter& painter, const ChartContent& content, const QRectF& room, double scale,
               const ChartColours& colours) {
    if (!(scale > 0)) return;
    const double line = QFontMetricsF(painter.font()).height();
    const double most = room.width() * kScaleShare / scale;
    const double power = std::pow(10, std::floor(std::log10(most)));
    const double length = power * (most >= 5 * power ? 5 : most >= 2 * power ? 2 : 1);
    const QPointF from(std::round(room.left()) + 0.5, std::round(room.top() + line * 0.9) + 0.5);
    const QPointF to(std::round(from.x() + length * scale) + 0.5, from.y());
    painter.setPen(QPen(colours.text, 1));
    painter.drawLine(from, to);
    for (const QPointF& end : {from, to})
        painter.drawLine(end - QPointF(0, line * 0.25), end + QPointF(0, line * 0.25));
    painter.drawText(QRectF(to.x() + line * 0.4, from.y() - line, line * 10, line * 2),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     ValueText(length) + ' ' + ShownText(content.lengthUnit));
}

void DrawSurfaces(QPainter& painter, const std::vector<SurfaceItem>& surfaces, const ChartColours& colours) {
    const double line = QFontMetricsF(painter.font()).height();
    for (std::size_t i = 0; i < surfaces.size(); ++i) {
        const QRectF& room = surfaces[i].room;
        if (room.isEmpty() && (i == 0 || surfaces[i].surface.empty())) continue;
        if (room.isEmpty()) {  // the others have no room
            const QRectF& last = surfaces[i - 1].room;
            painter.drawText(QRectF(last.right() - line, last.top(), line * 2, line), Qt::AlignLeft,
                             QChar(0x2026));
            return;
        }
        FillAsSeries(painter,
                     QRectF(std::round(room.left()), std::round(room.top() + line * 0.2),
                            std::round(line * 1.5), std::round(line * 0.6)),
                     i, BarFill::Hatched, colours);
        painter.setPen(colours.text);
        painter.drawText(room.adjusted(line * 1.8, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         ShownText(surfaces[i].surface));
    }
}

void DrawStrip(QPainter& painter, const RunwayPlace& place, std::size_t surface,
               const ChartColours& colours) {
    const QPointF way = place.ends[1] - place.ends[0];
    const double length = std::hypot(way.x(), way.y());
    painter.save();
    painter.translate(place.ends[0]);
    painter.rotate(std::atan2(way.y(), way.x()) * 180 / std::numbers::pi);
    const QRectF strip(0, -place.width / 2, length, place.width);
    painter.fillRect(strip.adjusted(-1, -1, 1, 1), colours.ground);  // so that crossing ones stay apart
    FillAsSeries(painter, strip, surface, BarFill::Hatched, colours);
    painter.restore();
}

}  // namespace

void DrawRunways(QPainter& painter, const ChartContent& content, const QRectF& room,
                 const ChartColours& colours) {
    ChartColours gray = colours;
    gray.series.fill(colours.axis);
    const RunwayLayout layout = LayOutRunways(content, painter.font(), room);
    const std::vector<RunwayPlace>& places = layout.places;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto surface =
            std::find_if(layout.surfaces.begin(), layout.surfaces.end(),
                         [&](const SurfaceItem& item) { return item.surface == content.runways[i].surface; });
        DrawStrip(painter, places[i], static_cast<std::size_t>(surface - layout.surfaces.begin()), gray);
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
        for (const int end : {0, 1}) DrawEnd(painter, places[i], end, content.runways[i].ends[end], colours);
    }
    DrawNorth(painter, layout.north, colours);
    painter.setRenderHint(QPainter::Antialiasing, false);
    DrawScale(painter, content, layout.scaleLine, layout.scale, colours);
    DrawSurfaces(painter, layout.surfaces, gray);
    painter.restore();
}

}  // namespace orlo
