#pragma once

#include <QFontMetricsF>
#include <QRectF>
#include <QString>
#include <vector>

#include "desktop/ChartStyle.h"
#include "desktop/LegendItems.h"
#include "desktop/PlotFacts.h"
#include "forms/Chart.h"

namespace orlo {

// Where a plot is drawn, in pixels, and how its values become places.
struct PlotBox {
    PlotBox(const ChartPlot& plotOf, const PlotFacts& factsOf) : plot(plotOf), facts(factsOf) {}

    const ChartPlot& plot;
    const PlotFacts& facts;
    QRectF title;               // a line
    QRectF legend;              // lines above the axes; empty for none
    int legendLines = 0;        // of the legend that are shown
    QRectF inner;               // between the axes
    QRectF placesTitle;         // a line below
    bool namesAtLines = false;  // the names of step lines and levels stand at their right ends
    double top = 1;             // the value at the upper end, of lying bars at the right one
    double step = 1;            // between two marks of the values
    double row = 0;             // height of the place of lying bars
    double scroll = 0;          // how much of their rows is above `inner`

    double X(double at) const;          // of upright plots
    double Y(double value) const;       // the same
    double Length(double value) const;  // of a lying bar
    // The bar of a value. It stands on another one or beside it.
    QRectF Bar(std::size_t series, std::size_t place) const;
    // How far the places of upright bars are from each other.
    double SlotWidth() const { return inner.width() / (facts.last - facts.first); }
    // The bars are so narrow that they are drawn like steps.
    bool Dense() const;
    // The same for all bars, so that none seems to be of another series.
    BarFill Fill() const;
    // As a mark of the axis of the values has it.
    QString MarkText(double value) const;

  private:
    double BarThickness() const;
    double BarStart(std::size_t series) const;
};

// The height of a place of lying bars at which names and values are seen best, by that of a line of text.
double NaturalRow(const PlotFacts& facts, double line);

// Where these series stand in a legend of this width.
std::vector<LegendItem> LegendOf(const ChartPlot& plot, const std::vector<std::size_t>& series,
                                 const QFontMetricsF& metrics, double width);
double SampleWidth(const QFontMetricsF& metrics);
// Its name and value.
QString LevelText(const ChartPlot& plot, const ChartLevel& level);
// The series that the legend of the plot names.
std::vector<std::size_t> SeriesOfLegend(const PlotFacts& facts, bool namesAtLines);

}  // namespace orlo
