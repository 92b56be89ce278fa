#include "desktop/ChartBinder.h"

namespace orlo {

void ChartBinder::DrawContent() {
    const auto& chart = static_cast<const Chart&>(Of());
    if (drawnRevision_ == chart.Revision()) return;
    drawnRevision_ = chart.Revision();
    shown_.Show(chart.Content());
}

}  // namespace orlo
