#pragma once

#include <cstdint>

#include "mainwindow/Context.h"

namespace orlo {

// Starts the tool and lets events run until it has ended. The result is its exit code, and 0 where it can't
// be started. Meanwhile session.tool tells of it, and the user can end it: the main window's close box asks
// whether to, and Ctrl+C in the program's terminal does it unasked.
std::int32_t RunAndWait(Context& context, const ToolStart& start);
}  // namespace orlo
