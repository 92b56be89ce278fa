#include "desktop/EmptyHint.h"

#include <QPainter>

#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr int kEdge = 8;

}  // namespace

void EmptyHint::Draw(QAbstractItemView& view, const std::string& shown) {
    if (drawn_ == shown) return;
    drawn_ = shown;
    view.setAccessibleDescription(ToQString(drawn_));
    view.viewport()->update();
}

void EmptyHint::Paint(QAbstractItemView& view) const {
    if (drawn_.empty()) return;
    QPainter painter(view.viewport());
    const QRect room = view.viewport()->rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
    const QString text = painter.fontMetrics().elidedText(ToQString(drawn_), Qt::ElideRight, room.width());
    painter.setPen(view.palette().color(QPalette::PlaceholderText));
    painter.drawText(room, Qt::AlignCenter | Qt::TextSingleLine, text);
}

}  // namespace orlo
