#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// The end that the system asks for (services/EndRequest.h).

// Ends the program's work without a question, while no operation runs: keeps a changed plan and a changed
// project as entries of the kept files, writes the settings, and leaves a note of it for the next start.
// Memory stays as it is, and nothing is written in the user's folders. False where something changed could
// not be kept; the rest is done all the same.
bool EndBySystem(Context& context);

// Leaves a note for the next start of what this event has kept, since it stands in no file of the user.
void NoteUnsavedEnd(Context& context);
// Says in the status bar what the last such end has kept, once.
void TellUnsavedEnd(Context& context);

}  // namespace orlo
