#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QSize>

#include "forms/Control.h"

class QPainter;

namespace orlo {

// A small mark in front of a coloured row, of a shape of its own for each colour, so that the row can be told
// where its colour can't be seen: by who doesn't see colours, and while it is selected.

QSize ColourMarkSize(const QFont& font);

// Red is a triangle, blue a disc, in their own shades or else in `instead`; other colours have no mark.
void PaintColourMark(QPainter& painter, const QRect& room, Colour colour, const QColor& instead = QColor());

}  // namespace orlo
