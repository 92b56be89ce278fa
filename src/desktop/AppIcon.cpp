#include "desktop/AppIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace orlo {
namespace {

// In parts of the emblem's side.
constexpr double kCorner = 0.18;
constexpr double kRouteWidth = 0.07;
constexpr double kAirportRadius = 0.10;
constexpr QPointF kFrom(0.22, 0.74);
constexpr QPointF kTo(0.78, 0.58);
constexpr QPointF kOverTheTop(0.46, 0.02);

}  // namespace

void DrawEmblem(QPainter& painter, const QRectF& place) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width(), place.height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1D, 0x4E, 0x89));
    painter.drawRoundedRect(QRectF(0, 0, 1, 1), kCorner, kCorner);

    QPainterPath route(kFrom);
    route.quadTo(kOverTheTop, kTo);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, kRouteWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(route);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0xB7, 0x03));
    for (const QPointF& airport : {kFrom, kTo}) painter.drawEllipse(airport, kAirportRadius, kAirportRadius);
    painter.restore();
}

QIcon ApplicationIcon() {
    const QIcon installed = QIcon::fromTheme("orlo");
    if (!installed.isNull()) return installed;
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        DrawEmblem(painter, QRectF(0, 0, side, side));
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace orlo
