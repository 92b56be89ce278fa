#include "desktop/ChartPainter.h"

#include "desktop/PlotPainter.h"
#include "desktop/RunwayPainter.h"
#include "desktop/ScreenText.h"

namespace orlo {

void DrawChart(QPainter& painter, const ChartData& chart, const ChartBoxes& boxes,
               const ChartColours& colours) {
    const QFont font = painter.font();
    painter.setPen(colours.text);
    painter.setFont(TitleFont(font));
    const QString title = painter.fontMetrics().elidedText(ShownText(chart.content.title), Qt::ElideRight,
                                                           static_cast<int>(boxes.title.width()));
    painter.drawText(boxes.title, Qt::AlignLeft | Qt::AlignTop, title);
    painter.setFont(font);
    painter.drawText(boxes.note, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap,
                     ShownText(chart.content.note));
    if (!chart.content.runways.empty()) DrawRunways(painter, chart.content, boxes.runways, colours);
    for (const PlotBox& box : boxes.plots) DrawPlot(painter, box, colours);
}

}  // namespace orlo
