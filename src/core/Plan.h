#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/FlightList.h"
#include "core/KeyedIndex.h"
#include "core/KnownFiles.h"
#include "core/PlanRecords.h"

namespace orlo {

// A plan as its files hold it, and whether it is open. A new one is empty and not loaded.
struct Plan {
    std::string FlightplanPath;  // the side files stand in its folder; start of the file dialogs, too
    FlightList Flights;
    std::vector<PlanAircraft> PlanAircrafts;
    std::vector<PlanAirport> PlanAirports;
    KeyedIndex<std::int32_t> PlanAirportIndex;  // code to the first place in PlanAirports
    std::int32_t MaxACNumber = 0;               // largest number behind "AC#" in Aircraft.txt
    bool PlanLoaded = false;                    // it was read to its end
    bool PlanModified = false;                  // it has changes that were not saved
    bool DiffersFromFile = false;               // the last save could not be written whole
    KnownFiles Known;                           // the plan's files as this session read or wrote them

    std::int32_t FlightCount() const { return Flights.Count(); }
    std::int32_t PlanAircraftCount() const { return static_cast<std::int32_t>(PlanAircrafts.size()); }
    std::int32_t PlanAirportCount() const { return static_cast<std::int32_t>(PlanAirports.size()); }
};

}  // namespace orlo
