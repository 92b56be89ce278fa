#pragma once

#include <string>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/FileBackup.h"
#include "services/FileSystem.h"

namespace orlo {

// Writes edited aircraft back into the simulator's files: into each aircraft.cfg the keys whose values differ
// from those in `kept`, the aircraft as their files have them, place by place; and the radius into the model
// that it was read from, as 32 bits, low byte first. All other bytes of these files stay. `backUp` is called
// for a file before it is written; null for no backups. What is written loses its marks Changed and
// RadiusChanged and goes to `kept`.
//
// Files are written in the order of the list, an aircraft.cfg whole. The first one that can't be written, or
// backed up, ends the save: its path, or that of the backup, is the result, and what comes behind keeps its
// marks. Empty where all is written.
std::string SaveAircraft(std::vector<FSAircraft>& aircraft, std::vector<FSAircraft>& kept, FileSystem& files,
                         const BackUpFile& backUp);

}  // namespace orlo
