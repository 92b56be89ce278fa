#pragma once

#include <string>
#include <string_view>

#include "core/InitialisationFile.h"
#include "core/Session.h"
#include "services/FileSystem.h"

namespace orlo {

// A value of an aircraft's configuration files: the text before the first ";", without blanks and tabs around
// it.
std::string ConfigText(std::string_view value);

// Changes such a value; a comment behind it stays. False, with nothing changed, where InitialisationFile::Set
// is refused.
bool SetConfigText(InitialisationFile& file, std::string_view section, std::string_view key,
                   std::string_view text);

// Name of a part's folder beside aircraft.cfg: "part", or "part.name" where there is a name.
std::string PartName(std::string_view part, std::string_view name);

// What is missing among the files of one aircraft; empty where nothing is. Needs the values of a detailed
// scan.
std::string AircraftFileProblem(const FSAircraft& aircraft, FileSystem& files);

// Writes what is missing among the files of each aircraft into its Problem, and sets FSAircraftProblems where
// there is one; never clears it. Needs the values of a detailed scan.
void CheckAircraftFiles(Fleet& fleet, FileSystem& files);

}  // namespace orlo
