#include "desktop/ChartWidget.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/ChartPainter.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr std::ptrdiff_t kFar = std::numeric_limits<std::ptrdiff_t>::max();
constexpr std::ptrdiff_t kPages = 10;  // Page Down goes so many parts of the axis
constexpr int kLinesHigh = 20;         // of each plot, the same below
constexpr int kCharactersWide = 70;
constexpr int kLeastLinesHigh = 10;
constexpr int kLinesForLegends = 4;  // more, so that each plot with a legend shows a line of it
constexpr int kLeastCharactersWide = 30;

// A tip is no markup, and keeps its lines.
QString ShownTip(const QString& text) {
    return TipText(FromQString(text));
}

}  // namespace

ChartWidget::ChartWidget(QWidget* parent) : QAbstractScrollArea(parent) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
    verticalScrollBar()->setSingleStep(fontMetrics().height() * 2);
    setFocusPolicy(Qt::NoFocus);
}

void ChartWidget::Show(const ChartContent& content) {
    chart_ = ChartData(content);
    current_.reset();
    hovered_.reset();
    setFocusPolicy(HasPoints(chart_) ? Qt::StrongFocus : Qt::NoFocus);
    updateGeometry();
    FitScrollBar();
    Describe();
    viewport()->update();
}

ChartBoxes ChartWidget::Boxes() const {
    return LayOutChart(chart_, font(), viewport()->rect(), verticalScrollBar()->value());
}

QSize ChartWidget::SizeOf(int charactersWide, int linesHigh) const {
    const int plots = std::max(1, static_cast<int>(chart_.content.plots.size()));
    return {fontMetrics().horizontalAdvance('0') * charactersWide,
            fontMetrics().height() * linesHigh * plots};
}

QSize ChartWidget::sizeHint() const {
    return SizeOf(kCharactersWide, kLinesHigh);
}

QSize ChartWidget::minimumSizeHint() const {
    const auto named = [](const PlotFacts& facts) { return !SeriesOfLegend(facts, false).empty(); };
    const bool legend = std::any_of(chart_.facts.begin(), chart_.facts.end(), named);
    const int more = legend ? fontMetrics().height() * kLinesForLegends : 0;
    return SizeOf(kLeastCharactersWide, kLeastLinesHigh).grownBy({0, 0, 0, more});
}

void ChartWidget::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.setFont(font());
    painter.fillRect(viewport()->rect(), palette().base());
    const ChartBoxes boxes = Boxes();
    DrawChart(painter, chart_, boxes, ChartColoursOf(palette()));
    if (hovered_) DrawMark(painter, boxes, *hovered_);
    if (!hasFocus()) return;
    if (current_) DrawMark(painter, boxes, *current_);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

void ChartWidget::DrawMark(QPainter& painter, const ChartBoxes& boxes, const ChartPoint& point) const {
    const QPolygonF mark = MarkOf(chart_, boxes, font(), point);
    painter.save();
    if (boxes.overflow > 0) {
        const QRectF& rows = boxes.plots.front().inner;
        painter.setClipRect(QRectF(0, rows.top(), viewport()->width(), rows.height()));
    }
    painter.setPen(QPen(palette().color(QPalette::Text), 2));
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, !chart_.content.runways.empty());
    painter.drawPolygon(mark);
    painter.restore();
}

void ChartWidget::resizeEvent(QResizeEvent*) {
    FitScrollBar();
}

void ChartWidget::scrollContentsBy(int, int) {
    hovered_.reset();
    viewport()->update();
}

void ChartWidget::FitScrollBar() {
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, static_cast<int>(Boxes().overflow));
}

// The place of lying bars is moved down and up, that of all others to the sides.
void ChartWidget::keyPressEvent(QKeyEvent* event) {
    if (!HasPoints(chart_) || (event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return event->ignore();
    const bool lying = !chart_.facts.empty() && chart_.facts.front().lying;
    std::ptrdiff_t across = 0;
    std::ptrdiff_t down = 0;
    std::ptrdiff_t far = 0;  // along the places, whichever way they run
    const auto page = [&] {
        const std::size_t plot = current_ ? current_->plot : 0;
        const std::size_t count =
            plot < chart_.content.plots.size() ? chart_.content.plots[plot].PlaceCount() : 0;
        return std::max<std::ptrdiff_t>(1, static_cast<std::ptrdiff_t>(count) / kPages);
    };
    switch (event->key()) {
        case Qt::Key_Left:
            across = -1;
            break;
        case Qt::Key_Right:
            across = 1;
            break;
        case Qt::Key_Up:
            down = -1;
            break;
        case Qt::Key_Down:
            down = 1;
            break;
        case Qt::Key_Home:
            far = -kFar;
            break;
        case Qt::Key_End:
            far = kFar;
            break;
        case Qt::Key_PageUp:
            far = -page();
            break;
        case Qt::Key_PageDown:
            far = page();
            break;
        default:
            return event->ignore();
    }
    if (lying) std::swap(across, down);
    const std::ptrdiff_t places = far != 0 ? far : across;
    // The first key shows the first value, whatever it asks for but the end.
    if (!current_) return MoveTo(Moved(chart_, {0, 0, 0}, far > 0 ? far : 0, 0));
    MoveTo(Moved(chart_, *current_, places, down));
}

void ChartWidget::MoveTo(const ChartPoint& point) {
    current_ = point;
    hovered_.reset();
    BringIntoSight(point);
    Describe();
    viewport()->update();
    const QRect mark = MarkOf(chart_, Boxes(), font(), point).boundingRect().toRect();
    QToolTip::showText(viewport()->mapToGlobal(mark.bottomRight()), ShownTip(PointText(chart_, point)),
                       viewport());
}

void ChartWidget::BringIntoSight(const ChartPoint& point) {
    const ChartBoxes boxes = Boxes();
    if (boxes.overflow <= 0) return;
    const QRectF& rows = boxes.plots.front().inner;
    const double row = boxes.plots.front().row;
    const double top = rows.top() - boxes.plots.front().scroll + static_cast<double>(point.place) * row;
    double by = 0;
    if (top < rows.top()) by = top - rows.top();
    if (top + row > rows.bottom()) by = top + row - rows.bottom();
    verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                  static_cast<int>(by < 0 ? std::floor(by) : std::ceil(by)));
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
    const std::optional<ChartPoint> point = PointUnder(chart_, Boxes(), font(), event->position());
    if (point) MoveTo(*point);
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    Hover(event->position().toPoint());
}

void ChartWidget::Hover(const QPoint& at) {
    const std::optional<ChartPoint> point = PointUnder(chart_, Boxes(), font(), at);
    if (point != hovered_) viewport()->update();
    hovered_ = point;
    if (point) {
        QToolTip::showText(viewport()->mapToGlobal(at), ShownTip(PointText(chart_, *point)), viewport());
    } else {
        QToolTip::hideText();
    }
}

void ChartWidget::focusInEvent(QFocusEvent*) {
    viewport()->update();
}

void ChartWidget::focusOutEvent(QFocusEvent*) {
    viewport()->update();
}

void ChartWidget::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) FitScrollBar();
}

bool ChartWidget::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        Hover(static_cast<QHelpEvent*>(event)->pos());
        return true;
    }
    if (event->type() == QEvent::Leave && hovered_) {
        hovered_.reset();
        viewport()->update();
    }
    return QAbstractScrollArea::viewportEvent(event);
}

// The current value; before there is one, the texts of the chart and how its values are reached.
void ChartWidget::Describe() {
    QString text;
    if (current_) {
        text = PointText(chart_, *current_).replace('\n', ", ");
    } else {
        for (const std::string& part : {chart_.content.title, chart_.content.note}) {
            if (!part.empty()) text += ShownText(part) + ' ';
        }
        if (HasPoints(chart_)) text += "The arrow keys tell the values.";
    }
    setAccessibleDescription(text.trimmed());
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

}  // namespace orlo
