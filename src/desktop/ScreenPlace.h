#pragma once

#include <QRect>
#include <QWidget>

namespace orlo {

// Where a top-level window may stand. Places are in pixels of the desktop, without the window's frame.

// Whether the user can drag a window from there: one screen shows at least half of its title bar's height,
// and 100 pixels of its width or all of it.
bool TitleBarReachable(const QWidget& window, const QRect& place);

// The place, moved so that the window is whole on the screen of its centre, else on the first screen. A
// window that is larger than the screen is made smaller, down to `least`; one that is still larger keeps its
// top left corner on the screen. Without any screen the place stays.
QRect PlaceOnScreen(const QWidget& window, QRect place, QSize least);

}  // namespace orlo
