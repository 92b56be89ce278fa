#include "shuffler/ShuffleLog.h"

#include <array>

#include "core/AircraftClassNames.h"
#include "core/AirportRecord.h"
#include "core/Path.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::string_view kNoAirline = "No Airline";
constexpr std::string_view kRule =
    ";---------------------------------------------------------------------------------";
constexpr std::string_view kTitle =
    ";------------------------------- O R L O  L O G ----------------------------------";

constexpr std::array<std::string_view, 13> kHead = {
    kRule,
    kTitle,
    kRule,
    ";Format:",
    ";  Airline / Aircraft Title / Aircraft Class / UI Manufacture / UI Type",
    ";  Runway: Min. Runway Length / Min. Parking Radius / Min. Runway Surface",
    ";      (only added if no aircraft could be found)",
    ";  Aircraft Number / Tail Number / IFR-VFR / Departure ICAO / Destination ICAO /",
    ";      Min. Flight Level / Max. Flight Level / Min. Distance / Max. Distance /",
    ";      Location (Region, Country, State, City, Airport)",
    ";",
    kRule,
    "",
};

// The flight line without its location.
std::string FlightLine(std::string_view aircraftNumber, const WorkingFlight& flight,
                       const FlightLimits& limits) {
    std::string_view departure;
    std::string_view destination;
    if (flight.LegCount > 0) {
        departure = flight.LegAt(flight.LegCount - 1).Destination;
        destination = flight.LegAt(0).Destination;
    }
    return Concat(aircraftNumber, "/", flight.TailNumber, "/", flight.FlightType, "/", departure, "/",
                  destination, "/", limits.minLevel, "/", limits.maxLevel, "/", limits.minDistance, "/",
                  limits.maxDistance);
}

}  // namespace

void OpenShuffleLog(LineFile& log, FileSystem& files, const std::string& flightplanPath) {
    log.Open(files, JoinPath(ParentFolder(flightplanPath), "Shuffle.log"));
    for (std::string_view line : kHead) log.Line(line);
}

void LogAircraft(LineFile& log, const FSAircraft& aircraft) {
    if (!log.IsOpen()) return;
    const std::string_view airline =
        aircraft.Airline.empty() ? kNoAirline : std::string_view(aircraft.Airline);
    log.Line(Concat(airline, "/", aircraft.Title, "/", AircraftClassName(aircraft.Class, "Unknown"), "/",
                    aircraft.UIManufacturer, "/", aircraft.UIType));
}

void LogRunway(LineFile& log, const RouteNeeds& needs) {
    if (!log.IsOpen()) return;
    log.Line(Concat("Runway: ", needs.minRunway, "/", needs.minParking, "/", SurfaceText(needs.surface)));
}

void LogUnknownAirport(LineFile& log, std::string_view code) {
    if (!log.IsOpen()) return;
    log.Line(Concat("ICAO ", code, " unknown. Please check your Airport configuration."));
}

void LogAssignedFlight(LineFile& log, const WorkingFlight& flight, const FlightLimits& limits,
                       std::string_view location) {
    if (!log.IsOpen()) return;
    log.Line(Concat(FlightLine(flight.ACNumber, flight, limits), "/", location));
    log.Line("");
}

void LogRemovedFlight(LineFile& log, const WorkingFlight& flight, const FlightLimits& limits) {
    if (!log.IsOpen()) return;
    log.Line(FlightLine("NO AIRCRAFT", flight, limits));
    log.Line("");
}

}  // namespace orlo
