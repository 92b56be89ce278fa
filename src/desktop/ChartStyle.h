#pragma once

#include <QColor>
#include <QPalette>
#include <QRectF>
#include <array>
#include <cstddef>
#include <span>

class QPainter;

namespace orlo {

// How the series of a chart are told apart: by colours that differ for people who don't see all of them, and
// besides by line styles and hatches. The twelfth series looks like the first.

constexpr std::size_t kChartStyles = 11;

struct ChartColours {
    QColor ground;
    QColor text;
    QColor faint;  // lines of the scale
    QColor axis;
    std::array<QColor, kChartStyles> series;
};

// Those of the window, light or dark.
ChartColours ChartColoursOf(const QPalette& palette);
// Those of a saved picture.
ChartColours PictureColours();

const QColor& SeriesColour(const ChartColours& colours, std::size_t series);

// Lengths in pixels, in turn drawn and left out; empty for a line without gaps.
std::span<const int> DashesOf(std::size_t series);
int DashLength(std::span<const int> dashes);
// Whether the line is drawn at this distance from its start, 0 or more.
bool DashDrawn(std::span<const int> dashes, int distance);

enum class BarFill {
    Hatched,  // with edges
    Plain,    // where the bars are too narrow for hatches
};

// Fills the rectangle as a bar of the series.
void FillAsSeries(QPainter& painter, const QRectF& bar, std::size_t series, BarFill fill,
                  const ChartColours& colours);

}  // namespace orlo
