#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// Opens "Help/index.html" of the program folder with the system's default handler. Where nothing opens it,
// the status bar says so.
void ShowHelp(Context& context);

// The same with the help page of the event's form (HelpPageOf), or with "Help/index.html" where that file is
// missing.
void ShowHelpPage(Context& context, Event& event);

void ShowAbout(Context& context);

}  // namespace orlo
