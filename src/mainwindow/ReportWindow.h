#pragma once

#include <string>
#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// What windows share that show a text, save it and print it.

// The text as it is saved and printed: behind a line of the program's title and the window's caption.
std::string ReportText(const Form& form, const TextBox& text);

// Asks for a printer and prints. False where nothing was printed; a print that failed is told in the status
// bar.
bool AskAndPrint(Context& context, std::string_view dialogTitle, std::string_view text);

}  // namespace orlo
