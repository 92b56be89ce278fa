#pragma once

#include <cstdint>
#include <string>

namespace orlo {

// One line of Aircraft.txt.
struct PlanAircraft {
    std::string ACNumber;         // "AC#" and digits, the key by which flights refer to the aircraft
    std::string Title;            // without quotes; joins the line to the installed aircraft of that title
    std::string CruiseSpeed;      // knots, as text
    std::int32_t UsageCount = 0;  // flights that a shuffle gave to it; not in the file

    bool operator==(const PlanAircraft&) const = default;
};

// One line of Airports.txt, all fields as text.
struct PlanAirport {
    std::string ICAO;
    std::string Latitude;  // for example "N47* 27.57'"
    std::string Longitude;
    std::string Altitude;  // feet

    bool operator==(const PlanAirport&) const = default;
};

}  // namespace orlo
