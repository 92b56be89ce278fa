#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Shows the pane of the selected tab, hides the others, and sets the default button and the focus that the
// pane tells.
void ActivateTab(Context& context);

}  // namespace orlo
