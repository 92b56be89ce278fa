#pragma once

#include <QSize>

#include "forms/MainForm.h"

namespace orlo {

// Lays the main window out with the fonts and the style of this screen, in the toolkit's pixels. Writes the
// box of every control that the window shows, the window's own box, its inner size at the opening, and the
// least inner size at which nothing overlaps or is cut. To be called before StartUp, which registers the
// boxes so that they follow the window's size. Needs the application object.
//
// A box counts from the control's container; that of an option in a frame from the frame's container, since
// it follows the window as the frame does.
void DesignMainForm(MainForm& form);

}  // namespace orlo
