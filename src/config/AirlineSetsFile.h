#pragma once

#include <string>
#include <string_view>

#include "core/AirlineRecords.h"
#include "core/Session.h"
#include "services/FileSystem.h"
#include "services/MessageHost.h"

namespace orlo {

// ORLO_AL.CFG: the airlines and tail number patterns of the world, its regions, countries, states, cities and
// airports.

// Reads the text of the file. No line is wrong: a share that can't be read makes an airline without a share.
AirlineSets ParseAirlines(std::string_view text);

// The name in an airline line: trimmed, then cut before the first "(" and the first ";". Blanks in front of
// the cut stay part of the name.
std::string CleanAirlineName(std::string_view text);

// Replaces session.rules.Airlines by the file of the program folder. False, with a critical message and the
// sets as they were, when the file is missing.
bool ReadAirlines(Session& session, FileSystem& files, MessageHost& messages);

}  // namespace orlo
