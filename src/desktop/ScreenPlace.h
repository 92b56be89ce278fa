#pragma once

#include <QRect>
#include <QWidget>

namespace orlo {

// Where a top-level window may stand, in the inner size and place of the window, without its frame.

// Whether the user can take hold of a window there: its title bar is on a screen of today, and wide enough.
bool TitleBarReachable(const QWidget& window, const QRect& place);

// The place moved so that the whole window is on the screen of its centre, and made smaller where it is
// larger than the screen, but not smaller than `least`. The top left corner is on the screen in any case.
QRect PlaceOnScreen(const QWidget& window, QRect place, QSize least);

}  // namespace orlo
