#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// Opens "Help/index.html" of the program folder with the system's default handler.
void ShowHelp(Context& context);

// The help page that belongs to the form and, of the main window, to its tab; "Help/index.html" where it is
// missing.
void ShowHelpPage(Context& context, Event& event);

// The window "About", modal.
void ShowAbout(Context& context);

}  // namespace orlo
