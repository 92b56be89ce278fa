#pragma once

#include <span>
#include <vector>

namespace orlo {

// The least and the greatest value that a step line takes within one column of pixels; greatest below least
// where the line isn't there.
struct ColumnRange {
    double least = 0;
    double greatest = -1;

    bool Empty() const { return greatest < least; }
};

// Reduces a step line to `count` columns, however many values it has, so that each peak is kept. `columns`
// has the column of each value's place, ascending; a value holds up to the column of the next one, the last
// one up to the end. What a column begins with counts for it, so that the line has no gaps. Columns below 0
// and from `count` on are not shown.
std::vector<ColumnRange> ReduceSteps(std::span<const int> columns, std::span<const double> values, int count);

}  // namespace orlo
