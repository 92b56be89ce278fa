#include "desktop/PlotPainter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/AxisSteps.h"
#include "desktop/PlotLabels.h"
#include "desktop/ScreenText.h"
#include "desktop/StepPainter.h"

namespace orlo {
namespace {

constexpr int kMostMarks = 12;

double Line(const QPainter& painter) {
    return QFontMetricsF(painter.font()).height();
}

QString Elided(const QPainter& painter, const std::string& text, double width) {
    return painter.fontMetrics().elidedText(ShownText(text), Qt::ElideRight, static_cast<int>(width));
}

// In the middle of a pixel, so that a line of one pixel is sharp.
double Sharp(double at) {
    return std::floor(at) + 0.5;
}

void DrawUprightValues(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    const double line = Line(painter);
    for (double value = 0; value <= box.top * 1.0001; value += box.step) {
        const double y = Sharp(box.Y(value));
        painter.setPen(QPen(value > 0 ? colours.faint : colours.axis, 1));
        painter.drawLine(QPointF(box.inner.left(), y), QPointF(box.inner.right(), y));
        painter.setPen(colours.text);
        const QRectF room(0, y - line, box.inner.left() - line * 0.35, line * 2);
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, box.MarkText(value));
    }
}

// Turned by a quarter, from bottom to top; left out where it doesn't fit.
void DrawValuesTitle(QPainter& painter, const PlotBox& box) {
    const QString title = ShownText(box.plot.valuesTitle);
    if (QFontMetricsF(painter.font()).horizontalAdvance(title) > box.inner.height() * 1.1) return;
    painter.save();
    painter.translate(box.title.left(), box.inner.center().y());
    painter.rotate(-90);
    const double half = box.inner.height();
    painter.drawText(QRectF(-half, 0, half * 2, Line(painter)), Qt::AlignCenter, title);
    painter.restore();
}

void DrawMark(QPainter& painter, const PlotBox& box, const ChartColours& colours, double x,
              const QString& text) {
    const double line = Line(painter);
    const double room = line * 10;
    painter.setPen(QPen(colours.axis, 1));
    painter.drawLine(QPointF(x, box.inner.bottom()), QPointF(x, box.inner.bottom() + line * 0.2));
    painter.setPen(colours.text);
    painter.drawText(QRectF(x - room / 2, box.inner.bottom() + line * 0.2, room, line), Qt::AlignCenter,
                     text);
}

void DrawNames(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    const auto count = static_cast<int>(box.plot.names.size());
    if (count == 0) return;
    const QFontMetricsF metrics(painter.font());
    const double widest = metrics.horizontalAdvance(ShownText(box.plot.names[box.facts.longestName])) +
                          metrics.horizontalAdvance('0') * 0.25;
    const int step = NameStep(count, static_cast<int>(box.inner.width() / widest));
    for (int i = 0; i < count; i += step)
        DrawMark(painter, box, colours, Sharp(box.X(i + 0.5)),
                 ShownText(box.plot.names[static_cast<std::size_t>(i)]));
}

void DrawNumbers(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    const QFontMetricsF metrics(painter.font());
    const bool time = box.plot.places == ChartPlaces::Time;
    const double range = box.facts.last - box.facts.first;
    const auto textOf = [time](double at) { return time ? ClockText(at) : ValueText(at); };
    const double widest = metrics.horizontalAdvance(time ? "00:00" : textOf(std::ceil(box.facts.last))) +
                          2 * metrics.horizontalAdvance('0');
    const int most = std::clamp(static_cast<int>(box.inner.width() / widest), 1, kMostMarks);
    const double step = time ? TimeStep(range, most) : ValueStep(range, most, true);
    for (double at = std::ceil(box.facts.first / step) * step; at <= box.facts.last; at += step) {
        const double x = Sharp(box.X(at));
        painter.setPen(QPen(colours.faint, 1));
        painter.drawLine(QPointF(x, box.inner.top()), QPointF(x, box.inner.bottom()));
        DrawMark(painter, box, colours, x, textOf(at));
        if (at + step == at) break;  // beyond what numbers tell apart
    }
}

void DrawUprightBars(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    if (box.Dense()) return DrawDenseBars(painter, box, colours);
    for (std::size_t place = 0; place < box.plot.PlaceCount(); ++place) {
        for (const std::size_t series : box.facts.bars)
            FillAsSeries(painter, box.Bar(series, place), series, box.Fill(), colours);
    }
}

void DrawUpright(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    DrawUprightValues(painter, box, colours);
    DrawValuesTitle(painter, box);
    if (box.plot.places == ChartPlaces::Named) {
        DrawNames(painter, box, colours);
    } else {
        DrawNumbers(painter, box, colours);
    }
    painter.drawText(box.placesTitle, Qt::AlignCenter, ShownText(box.plot.placesTitle));
    DrawUprightBars(painter, box, colours);
    DrawSteps(painter, box, colours);
    // Once more over the bars, so that they stand on something.
    painter.setPen(QPen(colours.axis, 1));
    const double base = Sharp(box.Y(0));
    painter.drawLine(QPointF(box.inner.left(), base), QPointF(box.inner.right(), base));
    DrawLevels(painter, box, colours);
    DrawPeaks(painter, box, colours);
    if (box.namesAtLines) DrawNamesAtLines(painter, box, colours);
}

void DrawLyingMarks(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    const double line = Line(painter);
    const auto count = static_cast<double>(box.plot.names.size());
    const double bottom = std::min(box.inner.bottom(), box.inner.top() + count * box.row - box.scroll);
    for (double value = 0; value <= box.top * 1.0001; value += box.step) {
        const double x = Sharp(box.inner.left() + box.Length(value));
        painter.setPen(QPen(value > 0 ? colours.faint : colours.axis, 1));
        painter.drawLine(QPointF(x, box.inner.top()), QPointF(x, bottom));
        painter.setPen(colours.text);
        painter.drawText(QRectF(x - line * 4, box.inner.top() - line * 1.1, line * 8, line), Qt::AlignCenter,
                         box.MarkText(value));
    }
    painter.drawText(box.placesTitle, Qt::AlignLeft | Qt::AlignVCenter,
                     Elided(painter, box.plot.valuesTitle, box.placesTitle.width()));
    const QRectF corner(box.title.left(), box.placesTitle.top(),
                        box.inner.left() - box.title.left() - line * 0.4, box.placesTitle.height());
    painter.drawText(corner, Qt::AlignRight | Qt::AlignVCenter, ShownText(box.plot.placesTitle));
}

void DrawRow(QPainter& painter, const PlotBox& box, const ChartColours& colours, std::size_t place) {
    const double line = Line(painter);
    const double top = box.inner.top() - box.scroll + static_cast<double>(place) * box.row;
    const QRectF room(box.title.left(), top, box.inner.left() - box.title.left() - line * 0.4, box.row);
    painter.setPen(colours.text);
    if (box.row > line * 0.8) {
        const QString name = Elided(painter, box.plot.names[place], room.width());
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, name);
    }
    for (const std::size_t series : box.facts.bars) {
        const QRectF bar = box.Bar(series, place);
        FillAsSeries(painter, bar, series, box.Fill(), colours);
        if (bar.height() < line * 0.6 || (box.facts.stacked && series != box.facts.bars.back())) continue;
        const double value = box.facts.stacked ? StackedValue(box.plot, box.facts, series, place)
                                               : DrawnValue(box.plot.series[series], place);
        const QString text = ValueText(value, box.plot.decimals);
        const QRectF beside(bar.right() + line * 0.25, bar.center().y() - line * 0.4,
                            QFontMetricsF(painter.font()).horizontalAdvance(text), line * 0.8);
        painter.fillRect(beside, colours.ground);  // no line of the scale crosses it
        painter.setPen(colours.text);
        painter.drawText(beside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text);
    }
}

void DrawLying(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    DrawLyingMarks(painter, box, colours);
    if (box.plot.names.empty()) return;
    const bool cut = box.row * static_cast<double>(box.plot.names.size()) > box.inner.height() + 1;
    painter.save();
    if (cut)
        painter.setClipRect(QRectF(box.title.left(), box.inner.top(), box.title.width(), box.inner.height()),
                            Qt::IntersectClip);
    const auto first = static_cast<std::size_t>(std::max(0.0, std::floor(box.scroll / box.row)));
    const auto shown = static_cast<std::size_t>(std::ceil(box.inner.height() / box.row)) + 2;
    for (std::size_t place = first; place < std::min(first + shown, box.plot.names.size()); ++place)
        DrawRow(painter, box, colours, place);
    painter.restore();
    DrawLevels(painter, box, colours);
}

}  // namespace

void DrawPlot(QPainter& painter, const PlotBox& box, const ChartColours& colours) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(colours.text);
    const QFont font = painter.font();
    painter.setFont(TitleFont(font));
    painter.drawText(box.title, Qt::AlignLeft | Qt::AlignVCenter,
                     Elided(painter, box.plot.title, box.title.width()));
    painter.setFont(font);
    DrawLegend(painter, box, colours);
    if (box.facts.lying) {
        DrawLying(painter, box, colours);
    } else {
        DrawUpright(painter, box, colours);
    }
}

}  // namespace orlo
