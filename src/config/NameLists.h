#pragma once

#include <string_view>

#include "core/RuleRecords.h"
#include "core/Session.h"
#include "services/FileSystem.h"
#include "services/MessageHost.h"

namespace orlo {

// ORLO_NAL.CFG, ORLO_NMD.CFG and ORLO_NTP.CFG: the names that an aircraft may carry as its airline, its model
// and its type.

// Reads the text of such a file: a name a line, without blank lines and lines that begin with ";".
NameList ParseNameList(std::string_view text);

// Whether the list holds the name, without regard to case: "*NAME*" is searched in its search text.
bool ContainsName(const NameList& list, std::string_view name);

// Each replaces one list of the session by its file of the program folder. False, with a critical message and
// an empty list, when the file is missing.
bool ReadAirlineNames(Session& session, FileSystem& files, MessageHost& messages);
bool ReadModelNames(Session& session, FileSystem& files, MessageHost& messages);
bool ReadTypeNames(Session& session, FileSystem& files, MessageHost& messages);

}  // namespace orlo
