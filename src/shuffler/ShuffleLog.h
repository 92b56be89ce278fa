#pragma once

#include <string>
#include <string_view>

#include "core/AircraftRecords.h"
#include "services/FileSystem.h"
#include "shuffler/LogFile.h"
#include "shuffler/RouteLimits.h"
#include "shuffler/WorkingFlight.h"

namespace orlo {

// Shuffle.log in the flightplan's folder. docs/shuffle-logs.md tells its lines.
void OpenShuffleLog(LogFile& log, FileSystem& files, const std::string& flightplanPath);
void LogAircraft(LogFile& log, const FSAircraft& aircraft);
void LogRunway(LogFile& log, const RouteNeeds& needs);
void LogUnknownAirport(LogFile& log, std::string_view code);
void LogAssignedFlight(LogFile& log, const WorkingFlight& flight, const FlightLimits& limits,
                       std::string_view location);
void LogRemovedFlight(LogFile& log, const WorkingFlight& flight, const FlightLimits& limits);

}  // namespace orlo
