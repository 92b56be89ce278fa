#include "desktop/ColourMark.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPolygonF>

#include "desktop/ScreenText.h"

namespace orlo {

QSize ColourMarkSize(const QFont& font) {
    const int side = QFontMetrics(font).ascent() * 2 / 3;
    return {side, side};
}

void PaintColourMark(QPainter& painter, const QRect& room, Colour colour, const QColor& instead) {
    if (colour != Colour::Red && colour != Colour::Blue) return;
    const QRectF box(room);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(instead.isValid() ? instead : ScreenColour(colour).value_or(QColor()));
    if (colour == Colour::Red) {
        const QPointF top(box.center().x(), box.top());
        painter.drawPolygon(QPolygonF({top, box.bottomRight(), box.bottomLeft()}));
    } else {
        painter.drawEllipse(box);
    }
    painter.restore();
}

}  // namespace orlo
