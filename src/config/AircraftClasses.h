#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/AircraftRecords.h"
#include "core/Session.h"
#include "services/FileSystem.h"
#include "services/MessageHost.h"

namespace orlo {

// ORLO_AC.CFG: the aircraft classes, their profiles and the aircraft that belong to them.

// Either the lists, or the first line with a wrong count of parts as it stands in the file.
struct ParsedClasses {
    std::optional<ClassLists> lists;
    std::string offendingLine;
};

// Reads the text of the file. A profile that it doesn't hold has its built-in values; so has a number of a
// section line that can't be read.
ParsedClasses ParseAircraftClasses(std::string_view text);

// Fills the entry from a line of one part, the ID, or of eleven; texts aren't trimmed, and a number that
// can't be read is unset. With any other count of parts the entry stays as it was.
void ParseClassEntry(ClassEntry& entry, std::string_view line);

// The text of the file with its comment header. An entry that leaves its speed, levels or ranges unset is
// written as its ID alone; one without an ID isn't written.
std::string FormatAircraftClasses(const ClassLists& lists);

// Replaces session.rules.Classes by the file of the program folder. False, with a critical message and the
// lists as they were, when the file is missing or holds a line with a wrong count of parts.
bool ReadAircraftClasses(Session& session, FileSystem& files, MessageHost& messages);

std::string AircraftClassesPath(const Session& session);

// Replaces the file of the program folder. False when it could not be written; the old file then stands
// whole.
bool WriteAircraftClasses(Session& session, FileSystem& files);

}  // namespace orlo
