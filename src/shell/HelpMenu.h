#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Opens "Help/index.html" of the program folder with the system's default handler.
void ShowHelp(Context& context);

// The window "About", modal.
void ShowAbout(Context& context);

}  // namespace orlo
