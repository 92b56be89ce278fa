#pragma once

#include <vector>

namespace orlo {

struct LegendItem {
    double x = 0;  // of its left edge
    int line = 0;
};

// Where the items of a legend stand that are so wide: from left to right, and on the next line where no room
// is left. One that is wider than the room has a line of its own.
std::vector<LegendItem> WrapLegend(const std::vector<double>& widths, double room);

// That the items fill.
int LinesOf(const std::vector<LegendItem>& items);

}  // namespace orlo
