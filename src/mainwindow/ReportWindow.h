#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "forms/Chart.h"
#include "mainwindow/Context.h"

namespace orlo {

// What windows share that show a text, save it and print it.

// The text as it is saved and printed: behind a line of the program's title and the window's caption.
std::string ReportText(const Form& form, const TextBox& text);

// Asks for a printer and prints. False where nothing was printed; a print that failed is told in the status
// bar.
bool AskAndPrint(Context& context, std::string_view dialogTitle, std::string_view text);

// Asks for a path, saves the charts there as one picture, and says so. The path's extension tells the
// format, PNG where it is none of PNG, SVG and PDF.
void SavePicture(Context& context, Form& form, std::string_view startFile,
                 std::initializer_list<const Chart*> charts);

}  // namespace orlo
