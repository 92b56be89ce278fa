#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Tells the main window which file its plan stands in and whether memory differs from it, for its title.
// Without an open plan it has no file. Runs at the end of every event, so that no procedure has to remember
// it.
void RefreshTitle(Context& context);

}  // namespace orlo
