#include "desktop/RunwayLayout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <utility>

#include "desktop/LegendItems.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr double kSameDirection = 5;    // degrees
constexpr double kLeastWidth = 8;       // pixels, in which a surface's pattern can be seen
constexpr double kScaleLines = 1.7;     // below the runways
constexpr double kLegendPitch = 1.1;    // lines
constexpr double kLegendShare = 0.35;   // of the height that scale and legend take, beyond its first line
constexpr double kParallelShare = 0.7;  // of the room that parallel runways lie in at most
constexpr double kFlat = 1e-6;          // a share of a way that counts for none

// How a runway lies.
struct RunwayLie {
    double direction = 0;  // degrees; within a group of one direction these are near each other
    bool forth = true;     // whether its second end is the far one in that direction
    QPointF right;         // across the direction of its group
    double side = 0;       // from the middle to that side: places, then pixels
};

// In which the sides of a group are counted: as of a heading from 0 to below 180.
double GroupDirection(double heading) {
    const double turned = std::fmod(heading, 180.0);
    return turned < 0 ? turned + 180 : turned;
}

double HeadingOf(const ChartRunway& runway) {
    return std::isfinite(runway.heading) ? runway.heading : 0;
}

// Sorts parallel runways as they lie from left to right: by number, then L, C, R.
std::pair<int, int> SideKey(const std::string& name) {
    int number = 0;
    std::from_chars(name.data(), name.data() + name.size(), number);
    const char last = name.empty() ? ' ' : name.back();
    return {number, last == 'L' ? 0 : last == 'R' ? 2 : 1};
}

QPointF Along(double direction) {
    const double angle = direction * std::numbers::pi / 180;
    return {std::sin(angle), -std::cos(angle)};
}

QPointF RightOf(const QPointF& along) {
    return {-along.y(), along.x()};
}

// Headings of 359 and 1 are parallel, but a half circle apart where each is turned to below 180; so all of a
// group are turned as its first one is.
void LieBeside(const std::vector<ChartRunway>& runways, std::vector<std::size_t>& group,
               std::vector<RunwayLie>& lies) {
    const double direction = GroupDirection(HeadingOf(runways[group.front()]));
    for (const std::size_t i : group) {
        const double heading = HeadingOf(runways[i]);
        lies[i].direction = direction + std::remainder(heading - direction, 180.0);
        lies[i].forth = std::abs(std::remainder(heading - direction, 360.0)) < 90;
        lies[i].right = RightOf(Along(direction));
    }
    const auto key = [&](std::size_t i) { return SideKey(runways[i].ends[lies[i].forth ? 0 : 1].number); };
    std::stable_sort(group.begin(), group.end(),
                     [&](std::size_t a, std::size_t b) { return key(a) < key(b); });
    for (std::size_t j = 0; j < group.size(); ++j)
        lies[group[j]].side = static_cast<double>(j) - static_cast<double>(group.size() - 1) / 2;
}

std::vector<RunwayLie> LiesOf(const std::vector<ChartRunway>& runways) {
    std::vector<RunwayLie> lies(runways.size());
    std::vector<bool> done(runways.size(), false);
    for (std::size_t i = 0; i < runways.size(); ++i) {
        if (done[i]) continue;
        std::vector<std::size_t> group;
        for (std::size_t j = i; j < runways.size(); ++j) {
            const double apart = std::remainder(HeadingOf(runways[i]) - HeadingOf(runways[j]), 180.0);
            if (done[j] || std::abs(apart) > kSameDirection) continue;
            group.push_back(j);
            done[j] = true;
        }
        LieBeside(runways, group, lies);
    }
    return lies;
}

// Turns the sides from places into pixels.
void SpreadSides(std::vector<RunwayLie>& lies, double line, const QRectF& room) {
    double outermost = 0;
    for (const RunwayLie& lie : lies) outermost = std::max(outermost, std::abs(lie.side));
    double distance = line * 2.4;
    if (outermost > 0)
        distance = std::min(distance, std::min(room.width(), room.height()) * kParallelShare / 2 / outermost);
    for (RunwayLie& lie : lies) lie.side *= distance;
}

// How far it is from a point to the corner at the upper right; endless where the way leads past it.
double WayToCorner(const QPointF& from, const QPointF& along, const QRectF& corner) {
    const auto way = [](double distance, double share) {
        if (distance <= 0) return 0.0;
        return share > kFlat ? distance / share : HUGE_VAL;
    };
    return std::max(way(corner.left() - from.x(), along.x()), way(from.y() - corner.bottom(), -along.y()));
}

// Pixels a unit of length, so that all with their numbers are within the room and beside the north arrow.
double ScaleOf(const std::vector<ChartRunway>& runways, const std::vector<RunwayLie>& lies,
               const QFontMetricsF& metrics, const QRectF& room, const QRectF& north) {
    const double line = metrics.height();
    const QRectF corner = north.adjusted(-line * 0.6, 0, 0, line * 0.6);  // for half of a number's height
    double scale = HUGE_VAL;
    for (std::size_t i = 0; i < runways.size(); ++i) {
        if (runways[i].length <= 0) continue;
        const QPointF along = Along(lies[i].direction);
        double label = 0;
        for (const RunwayEnd& end : runways[i].ends)
            label = std::max(label, metrics.horizontalAdvance(EndText(end)));
        label += line;
        const auto fit = [&](double way) {
            if (std::isfinite(way)) scale = std::min(scale, std::max(way, 1.0) / (runways[i].length / 2.0));
        };
        const double side = std::abs(lies[i].side) + line;
        const auto fitSide = [&](double half, double share, double across) {
            if (share > kFlat) fit((half - label * share - side * across) / share);
        };
        fitSide(room.width() / 2, std::abs(along.x()), std::abs(along.y()));
        fitSide(room.height() / 2, std::abs(along.y()), std::abs(along.x()));
        const QPointF middle = room.center() + lies[i].right * lies[i].side;
        for (const QPointF& outward : {along, -along}) fit(WayToCorner(middle, outward, corner) - label);
    }
    return std::isfinite(scale) ? scale : 0;
}

// From the room's left upper corner.
std::vector<SurfaceItem> PlaceSurfaces(const std::vector<ChartRunway>& runways, const QFontMetricsF& metrics,
                                       double width, int& lines) {
    std::vector<SurfaceItem> surfaces;
    std::vector<double> widths;
    for (const ChartRunway& runway : runways) {
        const auto same = [&](const SurfaceItem& item) { return item.surface == runway.surface; };
        if (std::any_of(surfaces.begin(), surfaces.end(), same)) continue;
        const double text = metrics.horizontalAdvance(ShownText(runway.surface));
        surfaces.push_back({runway.surface, {}});
        widths.push_back(runway.surface.empty() ? 0 : text + metrics.height() * 2.8);
    }
    const std::vector<LegendItem> items = WrapLegend(widths, width);
    for (std::size_t i = 0; i < items.size(); ++i)
        surfaces[i].room =
            QRectF(items[i].x, items[i].line * metrics.height() * kLegendPitch, widths[i], metrics.height());
    lines = LinesOf(items);
    return surfaces;
}

RunwayPlace PlaceOf(const ChartRunway& runway, const RunwayLie& lie, const QPointF& centre, double scale) {
    const QPointF middle = centre + lie.right * lie.side;
    const QPointF half = Along(lie.direction) * (std::max(runway.length, 0) * scale / 2);
    RunwayPlace place;
    place.ends[lie.forth ? 0 : 1] = middle - half;
    place.ends[lie.forth ? 1 : 0] = middle + half;
    place.width = std::max(kLeastWidth, runway.width * scale);
    return place;
}

}  // namespace

RunwayLayout LayOutRunways(const ChartContent& content, const QFont& font, const QRectF& room) {
    const QFontMetricsF metrics(font);
    const double line = metrics.height();
    RunwayLayout layout;
    int lines = 0;
    layout.surfaces = PlaceSurfaces(content.runways, metrics, room.width(), lines);
    const double least = line * (kScaleLines + kLegendPitch);
    const double most = std::min(room.height() / 2, std::max(least, room.height() * kLegendShare));
    const double foot = std::min(most, line * (kScaleLines + kLegendPitch * std::max(lines, 1)));
    const QRectF inner = room.adjusted(0, 0, 0, -foot);
    layout.scaleLine = QRectF(room.left(), inner.bottom(), room.width(), line * kScaleLines);
    for (SurfaceItem& item : layout.surfaces) {
        item.room.translate(layout.scaleLine.bottomLeft());
        if (item.room.bottom() > room.bottom() + 1) item.room = QRectF();
    }
    layout.north = QRectF(room.right() - line * 1.8, room.top(), line * 1.8, line * 2.4);
    std::vector<RunwayLie> lies = LiesOf(content.runways);
    SpreadSides(lies, line, inner);
    layout.scale = ScaleOf(content.runways, lies, metrics, inner, layout.north);
    for (std::size_t i = 0; i < content.runways.size(); ++i)
        layout.places.push_back(PlaceOf(content.runways[i], lies[i], inner.center(), layout.scale));
    return layout;
}

QString EndText(const RunwayEnd& end) {
    const QString number = ShownText(end.number);
    return end.closed ? number + " closed" : number;
}

}  // namespace orlo
