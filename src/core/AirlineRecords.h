#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orlo {

// An aircraft of an entry's airline, in a run of the shuffle.
struct AirlineAircraft {
    std::int32_t AircraftIndex = -1;      // place in Fleet::FSAircrafts
    std::int32_t PlanAircraftIndex = -1;  // place in Plan::PlanAircrafts
    std::int32_t UseCount = 0;            // flights assigned through this entry
};

// One airline in a set.
struct AirlineEntry {
    std::string Name;                  // after cleaning
    std::int32_t PlannedPercent = -1;  // its share once NormalisePercents has run
    std::int32_t Percent = -1;         // as read, at most 100; below 0 without a stated share
    std::int32_t Flights = 0;          // assigned in a run of the shuffle
    std::vector<AirlineAircraft> Aircraft;
};

// One section of the airline configuration.
struct AirlineSet {
    std::string Name;                    // the location as written; empty for the global set
    std::int32_t Flights = 0;            // assigned through this set in a run of the shuffle
    std::string TailPatterns;            // upper-cased, joined by ","
    std::vector<AirlineEntry> Airlines;  // in file order
};

// The whole hierarchy, as read.
struct AirlineSets {
    AirlineSet Global;
    std::vector<AirlineSet> Regions;
    std::vector<AirlineSet> Countries;
    std::vector<AirlineSet> Cities;
    std::vector<AirlineSet> States;
    std::vector<AirlineSet> Airports;
};

}  // namespace orlo
