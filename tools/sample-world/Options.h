#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orlo::world {

// What the user asked for on the command line.
struct Options {
    std::string Folder;       // where the world is written; created when it does not exist
    int AirportCount = 60;    // 2 to 40,000; the first sixty are real places, all others invented
    int AircraftCount = 120;  // variants, 1 to 20,000
    int AirlineCount = 12;    // 1 to 1,000; the number of airline sets grows along
    int FlightCount = 2000;   // 0 to 10,000,000
    std::uint64_t Seed = 1;
};

// The usage text, for standard error.
extern const char* const UsageText;

// Reads the arguments behind the program's name. Nothing comes back when an option is unknown, lacks its
// value or is out of range, or when the folder is missing or given twice.
std::optional<Options> ParseOptions(int argumentCount, const char* const* arguments);

}  // namespace orlo::world
