#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/FileSystem.h"
#include "services/MessageHost.h"

namespace orlo {

// What the readers of all rule files share. docs/rule-files.md tells the forms of the files.

// The bytes of the rule file `name` of the program folder. A file that can't be opened counts as missing: it
// gives nothing and a critical message that names it, with `advice` behind.
std::optional<std::string> ReadRuleFile(const std::string& programFolder, FileSystem& files,
                                        MessageHost& messages, std::string_view name,
                                        std::string_view advice = {});

// The critical message that a line of a rule file can't be read.
void ShowRuleLineError(MessageHost& messages, std::string_view name, std::string_view line);

// Whether the line begins with "[": it ends the section before it, even where it opens none.
bool EndsSection(std::string_view line);

// The text between the "[" in front of a line and the first "]"; nothing where either is missing.
std::optional<std::string_view> SectionHead(std::string_view line);

}  // namespace orlo
