#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// The words of a script line, which blanks and tabs separate. A word that begins with a double quote ends at
// the next one; it can hold blanks and tabs, and "" is a quote in it. Nothing where a quote isn't closed.
std::optional<std::vector<std::string>> SplitScriptLine(std::string_view line);

// What a word types into a field of several lines: \n is a line end, CR LF as in the form, and \\ a
// backslash. A backslash in front of anything else stands for itself.
std::string TypedLines(std::string_view word);

// A text for the output, without a line end: UTF-8, with \t for a TAB and \n for each CR LF, CR or LF.
std::string Printed(std::string_view text);

// The same with each backslash doubled, for the text of a message, a title or a prompt.
std::string PrintedMessage(std::string_view text);

}  // namespace orlo
