#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Writes the main window's documentName and documentModified: the file name of the open plan, empty without
// one, and whether the plan in memory differs from that file. The pump calls it at the end of every event.
void RefreshTitle(Context& context);

}  // namespace orlo
