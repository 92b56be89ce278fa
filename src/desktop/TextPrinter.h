#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string_view>

class QPrinter;

namespace orlo {

// A printer as the system offers it, with the margins of a form.
std::unique_ptr<QPrinter> MakeTextPrinter();

// Prints the text in a fixed-pitch font of size 10. Tabs stay, a line that is too long goes on in the next
// one, and no line is cut by the end of a page. Calls `betweenLines` some times a second. False where the
// printer can't be opened, with nothing printed, and where the file that it prints into could not be written
// whole.
bool PrintText(std::string_view text, QPrinter& printer, const std::function<void()>& betweenLines);

}  // namespace orlo
