#include "desktop/RunwayPainter.h"

#include <QFontMetricsF>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/AxisSteps.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr double kSameDirection = 5;    // degrees
constexpr double kLeastWidth = 8;       // pixels, in which a surface's pattern can be seen
constexpr double kFootLines = 2.8;      // below the runways, for scale and legend
constexpr double kParallelShare = 0.7;  // of the room that parallel runways lie in at most
constexpr double kScaleShare = 0.3;     // of the width that the scale takes at most

// Of the direction with the lower heading, 0 to below 180.
double Direction(const ChartRunway& runway) {
    const double turned = std::fmod(std::isfinite(runway.heading) ? runway.heading : 0.0, 180.0);
    return turned < 0 ? turned + 180 : turned;
}

double Apart(double a, double b) {
    const double apart = std::abs(a - b);
    return std::min(apart, 180 - apart);
}

// The end that is named in that direction.
const RunwayEnd& NamingEnd(const ChartRunway& runway) {
    const double heading = std::fmod(std::fmod(runway.heading, 360.0) + 360, 360.0);
    return runway.ends[heading < 180 ? 0 : 1];
}

// Sorts parallel runways as they lie from left to right: by number, then L, C, R.
std::string SideKey(const ChartRunway& runway) {
    std::string key = NamingEnd(runway).number;
    if (!key.empty() && key.back() == 'C') key.back() = 'M';
    return key;
}

QString EndText(const RunwayEnd& end) {
    const QString number = ShownText(end.number);
    return end.closed ? number + " closed" : number;
}

QPointF Along(double heading) {
    const double angle = heading * std::numbers::pi / 180;
    return {std::sin(angle), -std::cos(angle)};
}

// By runway, how many places beside the middle it lies, to the right where positive.
std::vector<double> SidePlaces(const std::vector<ChartRunway>& runways) {
    std::vector<double> places(runways.size(), 0);
    std::vector<bool> done(runways.size(), false);
    for (std::size_t i = 0; i < runways.size(); ++i) {
        if (done[i]) continue;
        std::vector<std::size_t> group;
        for (std::size_t j = i; j < runways.size(); ++j) {
            if (done[j] || Apart(Direction(runways[i]), Direction(runways[j])) > kSameDirection) continue;
            group.push_back(j);
            done[j] = true;
        }
        std::stable_sort(group.begin(), group.end(), [&](std::size_t a, std::size_t b) {
            return SideKey(runways[a]) < SideKey(runways[b]);
        });
        for (std::size_t j = 0; j < group.size(); ++j)
            places[group[j]] = static_cast<double>(j) - static_cast<double>(group.size() - 1) / 2;
    }
    return places;
}

QRectF RoomOfRunways(const QRectF& room, double line) {
    return room.adjusted(0, 0, 0, -std::min(room.height() / 2, line * kFootLines));
}

// Pixels a unit of length, so that all with their numbers are within the room.
double ScaleOf(const ChartContent& content, const std::vector<double>& sides, const QFontMetricsF& metrics,
               const QRectF& room) {
    double scale = HUGE_VAL;
    for (std::size_t i = 0; i < content.runways.size(); ++i) {
        const ChartRunway& runway = content.runways[i];
        if (runway.length <= 0) continue;
        const QPointF along = Along(Direction(runway));
        double label = 0;
        for (const RunwayEnd& end : runway.ends)
            label = std::max(label, metrics.horizontalAdvance(EndText(end)));
        label += metrics.height();
        const double side = std::abs(sides[i]) + metrics.height();
        const auto fit = [&](double half, double inDirection, double across) {
            const double left = half - label * inDirection - side * across;
            if (inDirection > 1e-6)
                scale = std::min(scale, std::max(left, 1.0) / (runway.length / 2.0 * inDirection));
        };
        fit(room.width() / 2, std::abs(along.x()), std::abs(along.y()));
        fit(room.height() / 2, std::abs(along.y()), std::abs(along.x()));
    }
    return std::isfinite(scale) ? scale : 0;
}

// By runway, in pixels.
std::vector<double> SideDistances(const ChartContent& content, const QFontMetricsF& metrics,
                                  const QRectF& room) {
    std::vector<double> sides = SidePlaces(content.runways);
    double outermost = 0;
    for (const double side : sides) outermost = std::max(outermost, std::abs(side));
    const double least = std::min(room.width(), room.height()) * kParallelShare / 2;
    double distance = metrics.height() * 2.4;
    if (outermost > 0) distance = std::min(distance, least / outermost);
    for (double& side : sides) side *= distance;
    return sides;
}

double PixelsPerUnit(const ChartContent& content, const QFontMetricsF& metrics, const QRectF& room) {
    return ScaleOf(content, SideDistances(content, metrics, room), metrics, room);
}

// The surfaces in the order of the runways, each once.
std::vector<std::string> SurfacesOf(const std::vector<ChartRunway>& runways) {
    std::vector<std::string> surfaces;
    for (const ChartRunway& runway : runways) {
        if (std::find(surfaces.begin(), surfaces.end(), runway.surface) == surfaces.end())
            surfaces.push_back(runway.surface);
    }
    return surfaces;
}

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

void DrawScale(QPainter& painter, const ChartContent& content, const QRectF& foot, double scale,
               const ChartColours& colours) {
    if (!(scale > 0)) return;
    const double line = QFontMetricsF(painter.font()).height();
    const double most = foot.width() * kScaleShare / scale;
    const double power = std::pow(10, std::floor(std::log10(most)));
    const double length = power * (most >= 5 * power ? 5 : most >= 2 * power ? 2 : 1);
    const QPointF from(std::round(foot.left()) + 0.5, std::round(foot.top() + line * 0.9) + 0.5);
    const QPointF to(std::round(from.x() + length * scale) + 0.5, from.y());
    painter.setPen(QPen(colours.text, 1));
    painter.drawLine(from, to);
    for (const QPointF& end : {from, to})
        painter.drawLine(end - QPointF(0, line * 0.25), end + QPointF(0, line * 0.25));
    painter.drawText(QRectF(to.x() + line * 0.4, from.y() - line, line * 10, line * 2),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     ValueText(length) + ' ' + ShownText(content.lengthUnit));
}

void DrawSurfaces(QPainter& painter, const std::vector<std::string>& surfaces, const QRectF& foot,
                  const ChartColours& colours) {
    const QFontMetricsF metrics(painter.font());
    const double line = metrics.height();
    double x = foot.left();
    for (std::size_t i = 0; i < surfaces.size(); ++i) {
        const QString name = ShownText(surfaces[i]);
        if (name.isEmpty()) continue;
        FillAsSeries(painter,
                     QRectF(std::round(x), std::round(foot.bottom() - line * 0.9), std::round(line * 1.5),
                            std::round(line * 0.6)),
                     i, colours);
        painter.setPen(colours.text);
        x += line * 1.8;
        const double width = metrics.horizontalAdvance(name) + line;
        painter.drawText(QRectF(x, foot.bottom() - line * 1.1, width, line), Qt::AlignLeft | Qt::AlignVCenter,
                         name);
        x += width;
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
    FillAsSeries(painter, strip, surface, colours);
    painter.restore();
}

}  // namespace

std::vector<RunwayPlace> PlaceRunways(const ChartContent& content, const QFont& font, const QRectF& room) {
    const QFontMetricsF metrics(font);
    const QRectF inner = RoomOfRunways(room, metrics.height());
    const std::vector<double> sides = SideDistances(content, metrics, inner);
    const double scale = ScaleOf(content, sides, metrics, inner);
    std::vector<RunwayPlace> places;
    for (std::size_t i = 0; i < content.runways.size(); ++i) {
        const ChartRunway& runway = content.runways[i];
        const double direction = Direction(runway);
        const QPointF along = Along(direction);
        const QPointF right(-along.y(), along.x());
        const QPointF middle = inner.center() + right * sides[i];
        const QPointF half = along * (std::max(runway.length, 0) * scale / 2);
        RunwayPlace place;
        const bool forth = &NamingEnd(runway) == &runway.ends[0];
        place.ends[forth ? 0 : 1] = middle - half;
        place.ends[forth ? 1 : 0] = middle + half;
        place.width = std::max(kLeastWidth, runway.width * scale);
        places.push_back(place);
    }
    return places;
}

void DrawRunways(QPainter& painter, const ChartContent& content, const QRectF& room,
                 const ChartColours& colours) {
    ChartColours gray = colours;
    gray.series.fill(colours.axis);
    const std::vector<std::string> surfaces = SurfacesOf(content.runways);
    const std::vector<RunwayPlace> places = PlaceRunways(content, painter.font(), room);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto surface = std::find(surfaces.begin(), surfaces.end(), content.runways[i].surface);
        DrawStrip(painter, places[i], static_cast<std::size_t>(surface - surfaces.begin()), gray);
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
        for (const int end : {0, 1}) DrawEnd(painter, places[i], end, content.runways[i].ends[end], colours);
    }
    const QFontMetricsF metrics(painter.font());
    const QRectF inner = RoomOfRunways(room, metrics.height());
    DrawNorth(painter, inner, colours);
    const QRectF foot(room.left(), inner.bottom(), room.width(), room.height() - inner.height());
    painter.setRenderHint(QPainter::Antialiasing, false);
    DrawScale(painter, content, foot, PixelsPerUnit(content, metrics, inner), colours);
    DrawSurfaces(painter, surfaces, foot, gray);
    painter.restore();
}

}  // namespace orlo
