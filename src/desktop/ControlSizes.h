#pragma once

#include <QMargins>
#include <QSize>
#include <initializer_list>
#include <string_view>

#include "forms/Control.h"

namespace orlo {

// The sizes that controls need with this screen's fonts and style, in the toolkit's pixels. All need the
// application object.

// The size at which a control shows its caption or entries whole. A text box, list, tree, chart, progress
// or status bar has one size for all of its kind, whatever it holds. 0 by 0 for a frame, a pane and a menu
// entry.
QSize NaturalSize(const Control& control);

// The largest natural width among them.
int WidestOf(std::initializer_list<const Control*> controls);

// The width of a field that shows the sample whole.
int FieldWidth(std::string_view sample);

// The height of a list that shows this many rows and its header.
int ListHeight(int rows);

// The space between the edges of a frame with a title and its contents.
QMargins FrameMargins();

struct LayoutSpace {
    QMargins edges;  // between the edges of a pane and its contents
    int across = 0;  // between controls beside each other
    int down = 0;    // between controls below each other
};
LayoutSpace SpaceOfStyle();

int MenuBarHeight();  // 0 where the system shows the menus outside the window

}  // namespace orlo
