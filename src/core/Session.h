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
#include "core/KnownFiles.h"
#include "core/Plan.h"
#include "core/ProjectRecords.h"
#include "core/RuleRecords.h"
#include "core/Switches.h"

namespace orlo {

// The installed aircraft.
struct Fleet {
    std::vector<FSAircraft> FSAircrafts;
    bool FSAircraftProblems = false;  // at least one variant has a Problem

    std::int32_t FSAircraftCount() const { return static_cast<std::int32_t>(FSAircrafts.size()); }
};

// The simulator's airports, empty until first needed.
struct Scenery {
    std::vector<AirportRecord> Airports;
};

// What the rule files say.
struct Rules {
    ClassLists Classes;
    AirlineSets Airlines;
    NameList AirlineNames;
    NameList ModelNames;
    NameList TypeNames;
    std::vector<FlightLevelRule> FlightLevelRules;
};

// The options of a shuffle, copied from its check boxes when it starts, and what it left.
struct ShuffleState {
    bool OverwriteTailNumber = true;
    bool CheckVisitedAirports = true;
    bool ChangeIFRVFR = true;
    bool RemoveMinus = false;
    bool CheckFL = true;
    AirlineSets RunAirlines;            // the working copy of Rules::Airlines, with the last results
    std::int32_t NoAirlineFlights = 0;  // given to aircraft without airline by the last run
    bool HasResult = false;             // both tell a run of the open plan that went through
};

// After the adding of a flight was given up, SearchResults and SearchResultIndex hold it as one element past
// the count.
struct SearchState {
    FlightList SearchResults;
    std::vector<std::int32_t> SearchResultIndex;  // place in the plan's Flights, ascending
    std::vector<std::string> SearchResultText;    // errors, after a search that tells them
    std::int32_t SearchResultCount = 0;
};

// Plans that belong together; paths alone, no flights.
struct ProjectState {
    std::string ProjectPath;                   // empty until it is saved
    std::string ProjectVersion = "1.1";        // of the file's format
    std::vector<ProjectEntry> ProjectEntries;  // in the order in which they are merged
    bool ProjectBegun = false;                 // a project was begun or opened since the start
    bool ProjectLoaded = false;
    bool ProjectModified = false;
    bool DiffersFromFile = false;  // the last save could not be written
    KnownFiles Known;              // its file as this session read or wrote it

    std::int32_t ProjectEntryCount() const { return static_cast<std::int32_t>(ProjectEntries.size()); }
};

// The outside tool that runs, such as the traffic compiler.
struct ToolState {
    std::string Running;          // its file's name; empty where none runs
    bool CloseRequested = false;  // the user has pressed the main window's close box since it was asked last
};

// What the running event has to say in the status bar beside its own text (mainwindow/StatusTexts.h).
struct EventNotes {
    std::string Failure;            // the last one; empty where nothing failed
    std::vector<std::string> Kept;  // full paths of what was kept, in that order
};

struct KeptState {
    EventNotes Notes;
    std::string Told;           // what was told of kept files, at the end of the status bar
    KeyedIndex<bool> StandIns;  // files of which this session keeps a copy in place of a backup
};

// The state of the running program.
struct Session {
    Plan plan;  // the one that is open
    Fleet fleet;
    Scenery scenery;
    Rules rules;
    Switches switches;
    ShuffleState shuffle;
    SearchState search;
    ProjectState project;
    ToolState tool;
    KeptState kept;
    KnownFiles known;  // other files that this session has written

    std::string ProgramFolder;
    std::string StateFolder;                       // of the kept files, made when first needed; empty: none
    std::string SimulatorFolder;                   // chosen by the user; empty: the machine's setting holds
    std::array<std::string, 5> RecentFlightplans;  // the newest first
    std::array<std::string, 5> RecentProjects;
};

}  // namespace orlo
