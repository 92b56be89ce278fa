#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Prints the working flight with its stored times, after the print dialog.
void PrintFlightEdit(Context& context);

}  // namespace orlo
