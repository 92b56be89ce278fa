#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// Says in the status bar what could not be written; messages stay as they are.
void ReportNotWritten(Context& context, std::string_view path);
// The same for a print that failed.
void ReportNotPrinted(Context& context);
// Takes such texts away, before the next try.
void ForgetNotWritten(Context& context);

}  // namespace orlo
