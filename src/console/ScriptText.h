#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// The words of a script line: separated by blanks and tabs; a word in double quotes may hold them, with ""
// for a quote inside. Nothing when a quote isn't closed.
std::optional<std::vector<std::string>> SplitScriptLine(std::string_view line);

// A text as one printed piece: UTF-8, TAB and line breaks as \t and \n.
std::string Printed(std::string_view text);

// The same for the text of a message or input box, where a backslash is doubled.
std::string PrintedMessage(std::string_view text);

}  // namespace orlo
