#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/FlightList.h"
#include "core/Plan.h"
#include "services/Services.h"

namespace orlo {

// FlightPlans.txt: one flight a line, fields separated by ",": aircraft, tail number, percent, period, flight
// type, then six fields a leg (departure, arrival with "@" in front when fixed, level, number mode, flight
// number, destination). docs/flightplan-file.md tells the form.

inline constexpr std::string_view kRemovedFlightsName = "Removed Flights.txt";

// Appends the flight of one line; false, with nothing changed, for a comment and for a line without two
// complete legs. Blanks around fields, an activity of 100 and long levels and flight numbers are normalised
// here.
bool AppendFlightplanLine(std::string_view line, FlightList& flights);

// Reads plan.FlightplanPath into plan.Flights in one pass. A file that can't be reached gives a
// critical message and leaves Flights empty. Progress runs from 0 to 100.
void ReadFlightplan(Plan& plan, Services& services);

// The lines of the flights with or without the Removed mark, as WriteFlightplan writes them.
std::string FormatFlights(const FlightList& flights, bool removed);

struct PlanWriteResult {
    std::optional<std::uint64_t> PlanHash;     // ContentHash of what was written; nothing where that failed
    std::optional<std::uint64_t> RemovedHash;  // the same of the removed flights; nothing without any, too
    bool OldRemovedGone = false;               // there was none to write, and no old file is left
    std::int32_t RemovedCount = 0;

    bool PlanWritten() const { return PlanHash.has_value(); }
    bool RemovedWritten() const { return RemovedHash || OldRemovedGone; }
    bool Complete() const { return PlanWritten() && RemovedWritten(); }
};

// "Removed Flights.txt" in the folder of a plan.
std::string RemovedFlightsPath(const std::string& path);

// Writes the flights with the Removed mark to RemovedFlightsPath (without any, that file is deleted), all
// others to `path`. A file that can't be written leaves the old one whole.
PlanWriteResult WriteFlightplan(FileSystem& files, const std::string& path, const FlightList& flights);

}  // namespace orlo
