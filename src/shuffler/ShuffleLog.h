#pragma once

#include <string>
#include <string_view>

#include "core/AircraftRecords.h"
#include "core/LineFile.h"
#include "services/FileSystem.h"
#include "shuffler/RouteLimits.h"
#include "shuffler/WorkingFlight.h"

namespace orlo {

// Shuffle.log in the flightplan's folder. docs/shuffle-logs.md tells its lines.
void OpenShuffleLog(LineFile& log, FileSystem& files, const std::string& flightplanPath);
void LogAircraft(LineFile& log, const FSAircraft& aircraft);
void LogRunway(LineFile& log, const RouteNeeds& needs);
void LogUnknownAirport(LineFile& log, std::string_view code);
void LogAssignedFlight(LineFile& log, const WorkingFlight& flight, const FlightLimits& limits,
                       std::string_view location);
void LogRemovedFlight(LineFile& log, const WorkingFlight& flight, const FlightLimits& limits);

}  // namespace orlo
