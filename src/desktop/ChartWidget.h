#pragma once

#include <QAbstractScrollArea>
#include <optional>

#include "desktop/ChartLayout.h"
#include "desktop/ChartPoints.h"

namespace orlo {

// Shows a chart as large as the widget is. Lying bars that don't fit are scrolled. The value under the
// pointer, and the current one, which the arrow keys move, are marked and told in a tip; the current one is
// the accessible description too.
class ChartWidget : public QAbstractScrollArea {
  public:
    explicit ChartWidget(QWidget* parent);

    // The current value is forgotten.
    void Show(const ChartContent& content);

    const ChartData& Shown() const { return chart_; }
    ChartBoxes Boxes() const;  // on the viewport
    const std::optional<ChartPoint>& Current() const { return current_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    // Of a widget with room for so much text, in its height for each of the plots.
    QSize SizeOf(int charactersWide, int linesHigh) const;
    void FitScrollBar();
    void MoveTo(const ChartPoint& point);
    void BringIntoSight(const ChartPoint& point);
    void Hover(const QPoint& at);
    void Describe();
    void DrawMark(QPainter& painter, const ChartBoxes& boxes, const ChartPoint& point) const;

    ChartData chart_{ChartContent{}};
    std::optional<ChartPoint> current_;
    std::optional<ChartPoint> hovered_;
};

}  // namespace orlo
