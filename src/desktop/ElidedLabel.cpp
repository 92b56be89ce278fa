#include "desktop/ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace orlo {

ElidedLabel::ElidedLabel(QWidget& parent, Qt::TextElideMode cut) : QLabel(&parent), cut_(cut) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const {
    const int edges = 2 * (frameWidth() + margin());
    const int sides = edges + 2 * std::max(indent(), 0);
    return QSize(fontMetrics().horizontalAdvance(text()) + sides, fontMetrics().height() + edges);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const int side = margin() + std::max(indent(), 0);
    const QRect room = contentsRect().adjusted(side, margin(), -side, -margin());
    const QString shown = fontMetrics().elidedText(text(), cut_, room.width());
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          foregroundRole());
}

}  // namespace orlo
