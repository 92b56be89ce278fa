#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Ends the program's work: asks about unsaved work, writes the settings and erases what is in memory. The
// main window is closed by the caller. False where the user cancels; then nothing was written but a save that
// the user asked for, and memory is as it was.
bool Shutdown(Context& context);

}  // namespace orlo
