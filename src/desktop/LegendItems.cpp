#include "desktop/LegendItems.h"

namespace orlo {

std::vector<LegendItem> WrapLegend(const std::vector<double>& widths, double room) {
    std::vector<LegendItem> items;
    LegendItem next;
    for (const double width : widths) {
        if (next.x > 0 && next.x + width > room) next = {0, next.line + 1};
        items.push_back(next);
        next.x += width;
    }
    return items;
}

int LinesOf(const std::vector<LegendItem>& items) {
    return items.empty() ? 0 : items.back().line + 1;
}

}  // namespace orlo
