#pragma once

#include <string>
#include <string_view>

#include "core/Session.h"
#include "services/FileSystem.h"

namespace orlo {

// A value of an aircraft's configuration files: the text before the first ";", without blanks and tabs around
// it.
std::string ConfigText(std::string_view value);

// Name of a part's folder beside aircraft.cfg: the part alone, or with "." and the name behind it.
std::string PartName(std::string_view part, std::string_view name);

// Fills the Problem of each aircraft from what is missing among its files, and the fleet's flag for
// problems found, which is only ever set here. Needs the values of a detailed scan.
void CheckAircraftFiles(Fleet& fleet, FileSystem& files);

}  // namespace orlo
