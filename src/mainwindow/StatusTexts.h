#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// Says in the status bar that the file could not be written. The messages to the user don't change by it.
void ReportNotWritten(Context& context, std::string_view path);
// The same for a print that failed.
void ReportNotPrinted(Context& context);
// Clears such a text from the status bar, before the next try.
void ForgetNotWritten(Context& context);

}  // namespace orlo
