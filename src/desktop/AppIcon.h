#pragma once

#include <QIcon>

class QPainter;
class QRectF;

namespace orlo {

// The program's emblem, a route between two airports, drawn into the square `place`.
void DrawEmblem(QPainter& painter, const QRectF& place);

// The icon of the installed theme, or the emblem where there is none.
QIcon ApplicationIcon();

}  // namespace orlo
