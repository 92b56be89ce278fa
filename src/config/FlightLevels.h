#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/RuleRecords.h"
#include "core/Session.h"
#include "services/FileSystem.h"
#include "services/MessageHost.h"

namespace orlo {

// ORLO_FL.CFG: the rules of flight levels. Their order is their priority.

// The rules up to the first line that hasn't exactly seven fields, and that line, trimmed.
struct ParsedFlightLevels {
    std::vector<FlightLevelRule> rules;
    std::optional<std::string> offendingLine;
};

// Reads the text of the file. A line of seven fields, one of which is no whole number, gives no rule.
ParsedFlightLevels ParseFlightLevels(std::string_view text);

// Replaces session.rules.FlightLevelRules by the file of the program folder. False, with a critical message,
// when the file is missing (no rules are left) or a line hasn't seven fields (the rules above it are left).
bool ReadFlightLevels(Session& session, FileSystem& files, MessageHost& messages);

}  // namespace orlo
