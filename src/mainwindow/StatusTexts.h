#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// Says in the status bar that the file could not be written, and whether another program has it open. The
// messages to the user don't change by it.
void ReportNotWritten(Context& context, std::string_view path);
// The same for a print that failed.
void ReportNotPrinted(Context& context);
// Clears such a text, and what was told of kept files, from the status bar before the next try.
void ForgetNotWritten(Context& context);

// At the end of an event: puts its failure in front of the text of the status bar, where another text took
// its place, and what it has kept (mainwindow/KeepAside.h) behind, in place of what was told so before.
void TellNotes(Context& context);

}  // namespace orlo
