#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/AircraftRecords.h"
#include "services/FileSystem.h"
#include "shuffler/WorkingFlight.h"

namespace orlo {

// A log that is written in place, gathered to large pieces. Without an open file all calls do nothing.
class LogFile {
  public:
    // A file that can't be created gives a closed log.
    void Open(FileSystem& files, const std::string& path);
    bool IsOpen() const { return file_ != nullptr; }
    void Line(std::string_view text);  // adds the line end
    void Close();

  private:
    std::unique_ptr<OutputFile> file_;
    std::string pending_;
};

// The levels and distances of a flight's legs: levels in hundreds of feet, distances in nautical miles.
struct FlightLimits {
    std::int32_t maxLevel = -1;
    std::int32_t maxDistance = -1;
    std::int32_t minLevel = 999999;
    std::int32_t minDistance = 999999;
};

// What the airports of a route allow: the shortest runway, the smallest parking radius, the surface class.
struct RouteNeeds {
    std::int32_t minRunway = 0;
    std::int32_t minParking = 0;
    std::int32_t surface = 0;  // SurfaceClass; any other value is none
};

// "HARD", "SOFT", "WATER" or "SNOW"; "1" without a surface.
std::string_view SurfaceText(std::int32_t surface);

// Shuffle.log in the flightplan's folder. docs/shuffle-logs.md tells its lines.
void OpenShuffleLog(LogFile& log, FileSystem& files, const std::string& flightplanPath);
void LogAircraft(LogFile& log, const FSAircraft& aircraft);
void LogRunway(LogFile& log, const RouteNeeds& needs);
void LogUnknownAirport(LogFile& log, std::string_view code);
void LogAssignedFlight(LogFile& log, const WorkingFlight& flight, const FlightLimits& limits,
                       std::string_view location);
void LogRemovedFlight(LogFile& log, const WorkingFlight& flight, const FlightLimits& limits);

}  // namespace orlo
