#include "desktop/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace orlo {

ElidedLabel::ElidedLabel(QWidget& parent, Qt::TextElideMode cut) : QLabel(&parent), cut_(cut) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const {
    const int edges = 2 * (frameWidth() + margin());
    return QSize(fontMetrics().horizontalAdvance(text()) + edges, fontMetrics().height() + edges);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const QString shown = fontMetrics().elidedText(text(), cut_, room.width());
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          foregroundRole());
}

}  // namespace orlo
