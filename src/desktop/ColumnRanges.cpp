#include "desktop/ColumnRanges.h"

#include <algorithm>

namespace orlo {

std::vector<ColumnRange> ReduceSteps(std::span<const int> columns, std::span<const double> values,
                                     int count) {
    std::vector<ColumnRange> ranges(static_cast<std::size_t>(std::max(count, 0)));
    const std::size_t size = std::min(columns.size(), values.size());
    std::size_t done = 0;  // columns that have what they begin with
    for (std::size_t i = 0; i < size; ++i) {
        const double value = values[i];
        const auto column = static_cast<std::size_t>(std::clamp(columns[i], 0, count));
        if (columns[i] >= count) break;
        if (i > 0) {
            for (; done <= column; ++done) ranges[done] = {values[i - 1], values[i - 1]};
        } else {
            done = column + 1;
        }
        ColumnRange& range = ranges[column];
        // Before the first column a value only replaces the one before.
        if (range.Empty() || columns[i] < 0) {
            range = {value, value};
        } else {
            range.least = std::min(range.least, value);
            range.greatest = std::max(range.greatest, value);
        }
        if (i + 1 == size || columns[i + 1] >= count) {
            for (; done < ranges.size(); ++done) ranges[done] = {value, value};
        }
    }
    return ranges;
}

}  // namespace orlo
