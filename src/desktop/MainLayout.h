#pragma once

#include <QSize>

#include "forms/MainForm.h"

namespace orlo {

// Lays the main window out for the fonts and the style of this screen: writes the box of every control that
// is shown, the size at which the window opens, which is its inner size from now on, and the least size that
// the layout needs. It comes before the program's start, which takes the boxes as those that follow the
// window's size. Needs the application object.
//
// A box counts from the control's container; that of an option in a frame from the frame's, since it follows
// the window as its frame does.
void DesignMainForm(MainForm& form);

}  // namespace orlo
