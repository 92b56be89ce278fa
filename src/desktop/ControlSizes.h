#pragma once

#include <QMargins>
#include <QSize>
#include <initializer_list>
#include <string_view>

#include "forms/Control.h"

namespace orlo {

// What controls need on this screen, by its fonts and the style of its widgets, in its units. All of them
// need the application object.

// The size at which a control shows its caption or entries whole; fields, lists and bars have one of their
// kind. Frames and panes have none.
QSize NaturalSize(const Control& control);

// The largest natural width among them.
int WidestOf(std::initializer_list<const Control*> controls);

// The width of a field in which a text like the sample stands whole.
int FieldWidth(std::string_view sample);

// The height of a list or tree that shows so many rows and its header.
int ListHeight(int rows);

// Between the edge of a frame with a title and what stands in it.
QMargins FrameMargins();

// Between the edge of a pane and what stands in it, and between controls.
struct LayoutSpace {
    QMargins edges;
    int across = 0;
    int down = 0;
};
LayoutSpace SpaceOfStyle();

int MenuBarHeight();  // 0 where the system shows the menus elsewhere

}  // namespace orlo
