#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string_view>

class QPrinter;

namespace orlo {

// The system's default printer, with margins of 15 mm.
std::unique_ptr<QPrinter> MakeTextPrinter();

// Prints the text in a fixed-pitch font of 10 points, with a tab stop at every 8 characters. A line that is
// too long is wrapped, and no line is cut by the end of a page. Calls `betweenLines` between two lines, at
// most 25 times a second. False where the printer can't be opened, and then nothing is printed, and where the
// PDF file that it prints into was not written whole.
bool PrintText(std::string_view text, QPrinter& printer, const std::function<void()>& betweenLines);

}  // namespace orlo
