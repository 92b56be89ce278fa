#pragma once

#include <vector>

#include "forms/Chart.h"

namespace orlo {

// What is drawn of a value: 0 for one that is missing, below 0 or no number, and for a huge one the largest
// that is drawn, 1e100.
double DrawnValue(const ChartSeries& series, std::size_t place);

// What the drawing of a plot asks of all its values, found once.
struct PlotFacts {
    double first = 0;  // ends of the axis of the places; of named ones 0 and their number
    double last = 1;
    double greatest = 0;   // of the values and levels, and of bars that stand on one another of their sums
    bool whole = true;     // all values are
    bool stacked = false;  // the bars of a place stand on one another
    bool lying = false;    // the bars lie, with the places from top to bottom and their names at the left
    std::size_t longestName = 0;    // the place
    std::vector<std::size_t> bars;  // the series of this kind
    std::vector<std::size_t> steps;
    std::vector<std::size_t> peaks;  // by series, the first place of its greatest value
};

// `alone`: its chart has no other plot, so that it may be as high as it likes.
PlotFacts FactsOf(const ChartPlot& plot, bool alone);

// A chart with what is drawn of it. Control characters of its texts are blanks here.
struct ChartData {
    explicit ChartData(ChartContent contentOf);

    ChartContent content;
    std::vector<PlotFacts> facts;  // by plot
};

// Where the place begins on the axis of the places, and where the next one does.
double StartOf(const ChartPlot& plot, std::size_t place);
double EndOf(const ChartPlot& plot, const PlotFacts& facts, std::size_t place);

// The sum of the bars of a place up to this series, where they stand on one another.
double StackedValue(const ChartPlot& plot, const PlotFacts& facts, std::size_t series, std::size_t place);

}  // namespace orlo
