#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The menu entry: opens frmResizeGates with the first type, no size and no filter.
void ShowResizeGates(Context& context);

// The size was typed: its label tells the feet, where it is one.
void OnGateSize(Context& context);
// A size is digits with a fraction. Any other text can't be left.
void OnLeaveGateSize(Context& context, Event& event);

// Writes the size into the scenery files, forgets the scenery, since its cache has the old radii, says how
// many gates have the size now, and closes. A size that is none is told, and nothing happens. Without a
// simulator that is told, and the cache stays.
void ResizeGates(Context& context);
void CloseResizeGates(Context& context);

}  // namespace orlo
