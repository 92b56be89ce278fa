#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Closing the main window: the questions about unsaved work, the settings, the erasing. False when the user
// cancels, and then nothing has happened but a save that was asked for.
bool Shutdown(Context& context);

}  // namespace orlo
