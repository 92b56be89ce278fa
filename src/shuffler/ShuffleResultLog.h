#pragma once

#include <string>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/AirlineRecords.h"
#include "services/FileSystem.h"

namespace orlo {

// Writes "Shuffle Result.log" into the flightplan's folder: the aircraft without airline, then what each set
// of `sets` was given. docs/shuffle-logs.md tells its lines. What can't be written is left out in silence.
void WriteShuffleResultLog(FileSystem& files, const std::string& flightplanPath, const AirlineSets& sets,
                           const AirlineEntry& noAirline, const std::vector<FSAircraft>& fsAircrafts);

}  // namespace orlo
