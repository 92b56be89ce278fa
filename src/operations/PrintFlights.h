#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Prints the flights of lvExPreview in their displayed order after asking for the printer.
void PrintFlights(Context& context);

}  // namespace orlo
