#include "desktop/ChartStyle.h"

#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>

namespace orlo {
namespace {

constexpr int kDarkBelow = 128;
constexpr double kTint = 0.25;
constexpr double kLineDistance = 5;  // within a hatch

// After Okabe and Ito; the light ones are darkened until they stand out on white by 3 to 1 at least.
constexpr std::array<QColor, kChartStyles> kOnLight = {
    QColor(0x00, 0x72, 0xB2), QColor(0xD5, 0x5E, 0x00), QColor(0x00, 0x8A, 0x65), QColor(0xB8, 0x5C, 0x8E),
    QColor(0xA8, 0x70, 0x00), QColor(0x2E, 0x8F, 0xC6), QColor(0x50, 0x50, 0x50), QColor(0x86, 0x80, 0x10),
    QColor(0x7A, 0x3E, 0xB1), QColor(0xC0, 0x30, 0x40), QColor(0x6B, 0x42, 0x26)};
constexpr std::array<QColor, kChartStyles> kOnDark = {
    QColor(0x56, 0xB4, 0xE9), QColor(0xF0, 0x86, 0x3C), QColor(0x20, 0xC0, 0x96), QColor(0xDE, 0x9A, 0xC4),
    QColor(0xE6, 0xB0, 0x30), QColor(0x8F, 0xA8, 0xFF), QColor(0xC8, 0xC8, 0xC8), QColor(0xF0, 0xE4, 0x42),
    QColor(0xC9, 0x8B, 0xFF), QColor(0xFF, 0x78, 0x84), QColor(0xC4, 0xA0, 0x80)};

constexpr int kLongDashes[] = {12, 4};
constexpr int kShortDashes[] = {5, 3};
constexpr int kDots[] = {2, 3};
constexpr int kDashDot[] = {10, 3, 2, 3};
constexpr int kDashDotDot[] = {10, 3, 2, 3, 2, 3};
constexpr int kWideGaps[] = {6, 8};
constexpr int kLongShort[] = {16, 4, 6, 4};
constexpr int kWideDots[] = {2, 7};
constexpr int kTwoDashesDot[] = {8, 3, 8, 3, 2, 3};
constexpr int kLongWideGaps[] = {20, 8};
constexpr std::span<const int> kDashes[kChartStyles] = {{},        kLongDashes,   kShortDashes, kDots,
                                                        kDashDot,  kDashDotDot,   kWideGaps,    kLongShort,
                                                        kWideDots, kTwoDashesDot, kLongWideGaps};

// The lines that a hatch is made of.
enum Hatch { Rising = 1, Falling = 2, Level = 4, Upright = 8 };
constexpr int kFilled = 0;
constexpr int kHollow = 16;
constexpr int kHatches[kChartStyles] = {
    kFilled, Rising,  Level,          Rising | Falling,  Falling,          Level | Upright,
    kHollow, Upright, Rising | Level, Falling | Upright, kHollow | Falling};

QColor Blend(const QColor& over, const QColor& under, double share) {
    const auto mix = [share](int a, int b) {
        return static_cast<int>(std::lround(a * share + b * (1 - share)));
    };
    return QColor(mix(over.red(), under.red()), mix(over.green(), under.green()),
                  mix(over.blue(), under.blue()));
}

// The lines are cut here and not by the painter, since a picture's file may know no clipping.
void AddLines(QVector<QLineF>& lines, const QRectF& box, Hatch hatch) {
    const double left = box.left();
    const double right = box.right();
    const double top = box.top();
    const double bottom = box.bottom();
    const auto each = [](double from, double to, auto&& add) {
        for (double at = std::ceil(from / kLineDistance) * kLineDistance; at < to; at += kLineDistance)
            add(at);
    };
    switch (hatch) {
        case Rising:  // x + y is the same along it
            return each(left + top, right + bottom, [&](double sum) {
                const double from = std::max(left, sum - bottom);
                const double to = std::min(right, sum - top);
                lines.append(QLineF(from, sum - from, to, sum - to));
            });
        case Falling:  // and here x - y
            return each(left - bottom, right - top, [&](double difference) {
                const double from = std::max(left, difference + top);
                const double to = std::min(right, difference + bottom);
                lines.append(QLineF(from, from - difference, to, to - difference));
            });
        case Level:
            return each(top, bottom, [&](double y) { lines.append(QLineF(left, y, right, y)); });
        case Upright:
            return each(left, right, [&](double x) { lines.append(QLineF(x, top, x, bottom)); });
    }
}

}  // namespace

ChartColours ChartColoursOf(const QPalette& palette) {
    ChartColours colours;
    colours.ground = palette.color(QPalette::Base);
    colours.text = palette.color(QPalette::Text);
    colours.faint = Blend(colours.text, colours.ground, 0.15);
    colours.axis = Blend(colours.text, colours.ground, 0.6);
    colours.series = colours.ground.lightness() < kDarkBelow ? kOnDark : kOnLight;
    return colours;
}

ChartColours PictureColours() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return ChartColoursOf(palette);
}

const QColor& SeriesColour(const ChartColours& colours, std::size_t series) {
    return colours.series[series % kChartStyles];
}

std::span<const int> DashesOf(std::size_t series) {
    return kDashes[series % kChartStyles];
}

int DashLength(std::span<const int> dashes) {
    int length = 0;
    for (const int part : dashes) length += part;
    return length;
}

bool DashDrawn(std::span<const int> dashes, int distance) {
    if (dashes.empty()) return true;
    distance %= DashLength(dashes);
    bool drawn = true;
    for (const int part : dashes) {
        if (distance < part) return drawn;
        distance -= part;
        drawn = !drawn;
    }
    return drawn;
}

void FillAsSeries(QPainter& painter, const QRectF& bar, std::size_t series, BarFill fill,
                  const ChartColours& colours) {
    if (bar.isEmpty()) return;
    const QColor& colour = SeriesColour(colours, series);
    const int hatch = kHatches[series % kChartStyles];
    if (hatch == kFilled || fill == BarFill::Plain) return painter.fillRect(bar, colour);
    painter.save();
    painter.setPen(QPen(colour, 1));
    painter.setBrush((hatch & kHollow) != 0 ? colours.ground : Blend(colour, colours.ground, kTint));
    const QRectF edges = bar.adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRect(edges);
    QVector<QLineF> lines;
    for (const Hatch part : {Rising, Falling, Level, Upright}) {
        if ((hatch & part) != 0) AddLines(lines, edges, part);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLines(lines);
    painter.restore();
}

}  // namespace orlo
