#pragma once

#include <cstdint>
#include <string>

namespace orlo {

// The value of a turn-around limit that is switched off.
inline constexpr std::int32_t kNoTurnAroundLimit = 999999;

// What the user switches or chooses, and the settings keep from one start to the next.
struct Switches {
    bool BackupPlan = true;
    bool BackupAircraft = true;
    bool Undo = true;
    bool ACCheck = true;
    bool DebugOn = false;
    bool ShowCompiler = false;
    bool CheckFlightLevels = true;
    bool CheckFlightTimes = true;
    bool CheckAircraftRange = true;
    std::int32_t TATime = 30;      // minutes, or kNoTurnAroundLimit
    std::int32_t MaxTATime = 24;   // hours, or kNoTurnAroundLimit
    std::int32_t StartNumber = 1;  // first number of a generated aircraft list
    std::string TTZone = "GMT";
    std::string EXZone = "GMT";
    std::string FEditZone = "GMT";
};

}  // namespace orlo
