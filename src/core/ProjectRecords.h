#pragma once

#include <cstdint>
#include <string>

namespace orlo {

// One flightplan of a project. Paths are as the project's file has them: those of another system are kept so.
struct ProjectEntry {
    std::string Flightplan;
    std::string AircraftFile;  // may be empty
    std::string Description;
    std::int16_t Reserved = 0;  // of old files, carried over

    bool operator==(const ProjectEntry&) const = default;
};

}  // namespace orlo
