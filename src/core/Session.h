#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/AirlineRecords.h"
#include "core/AirportRecord.h"
#include "core/FlightList.h"
#include "core/KeyedIndex.h"
#include "core/PlanRecords.h"
#include "core/RuleRecords.h"

namespace orlo {

// The value of a turn-around limit that is switched off.
inline constexpr std::int32_t kNoTurnAroundLimit = 999999;

// The state of the running program: one open plan, what is known of the simulator, the rules, the switches.
struct Session {
    // Plan data. Counts are those of the lists.
    FlightList Flights;
    std::vector<PlanAircraft> PlanAircrafts;
    std::vector<PlanAirport> PlanAirports;
    KeyedIndex<std::int32_t> PlanAirportIndex;  // code to the first place in PlanAirports
    std::int32_t MaxACNumber = 0;               // largest number behind "AC#" in Aircraft.txt
    std::int32_t StartNumber = 1;               // first number of a generated aircraft list

    std::int32_t FlightCount() const { return Flights.Count(); }
    std::int32_t PlanAircraftCount() const { return static_cast<std::int32_t>(PlanAircrafts.size()); }
    std::int32_t PlanAirportCount() const { return static_cast<std::int32_t>(PlanAirports.size()); }

    // Simulator data.
    std::vector<FSAircraft> FSAircrafts;
    bool FSAircraftProblems = false;      // at least one variant has a Problem
    std::vector<AirportRecord> Airports;  // the scenery, empty until first needed

    std::int32_t FSAircraftCount() const { return static_cast<std::int32_t>(FSAircrafts.size()); }

    // Rule files.
    ClassLists Classes;
    AirlineSets Airlines;     // as read
    AirlineSets RunAirlines;  // the shuffle's working copy with its last results
    NameList AirlineNames;
    NameList ModelNames;
    NameList TypeNames;
    std::vector<FlightLevelRule> FlightLevelRules;

    // Paths and state.
    std::string ProgramFolder;
    std::string SimulatorFolder;  // that the user chose; empty: the one of the machine-wide settings
    std::string FlightplanPath;
    bool PlanLoaded = false;
    bool PlanModified = false;
    std::string ProjectPath;
    bool ProjectLoaded = false;
    bool ProjectModified = false;
    std::array<std::string, 5> RecentFlightplans;  // the newest first
    std::array<std::string, 5> RecentProjects;

    // Switches that mirror settings.
    bool BackupPlan = true;
    bool BackupAircraft = true;
    bool Undo = true;
    bool ACCheck = true;
    bool CheckFlightLevels = true;
    bool CheckFlightTimes = true;
    bool CheckAircraftRange = true;
    bool DebugOn = false;
    bool ShowCompiler = false;
    std::int32_t TATime = 30;     // minutes, or kNoTurnAroundLimit
    std::int32_t MaxTATime = 24;  // hours, or kNoTurnAroundLimit
    std::string TTZone = "GMT";
    std::string EXZone = "GMT";
    std::string FEditZone = "GMT";

    // Options of a shuffle, copied from its check boxes when it starts.
    bool OverwriteTailNumber = true;
    bool CheckVisitedAirports = true;
    bool ChangeIFRVFR = true;
    bool RemoveMinus = false;
    bool CheckFL = true;

    // Search state. After a flight that was to be added was given up, the lists hold it as one more element
    // past the count.
    FlightList SearchResults;
    std::vector<std::int32_t> SearchResultIndex;  // place in Flights, ascending
    std::vector<std::string> SearchResultText;    // errors, after a search that tells them
    std::int32_t SearchResultCount = 0;

    void ClearSearch() {
        SearchResultCount = 0;
        SearchResults.Clear();
        SearchResultIndex.clear();
        SearchResultText.clear();
    }
};

}  // namespace orlo
