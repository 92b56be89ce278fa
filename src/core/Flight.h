#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orlo {

// In front of an arrival that is fixed, in files and packed rows.
inline constexpr char kFixedMark = '@';

// One leg of a flight. It starts where the leg before it ended; the first leg starts at the Destination of
// the last one, so that the legs form a closed round. All texts are as they stood in the file.
struct Leg {
    std::string DepartTime;   // "HH:MM:SS", in weekly flights "d/HH:MM:SS"
    std::string ETA;          // the same form, without the "@" mark
    bool FixedETA = false;    // the file has "@" in front of the arrival time
    std::string FlightLevel;  // hundreds of feet, normally three digits
    std::string NumberMode;   // "F": the leg uses its flight number, "R": it does not
    std::string FlightNumber;
    std::string Destination;  // airport code

    bool operator==(const Leg&) const = default;
};

// One line of a flightplan.
struct Flight {
    std::string ACNumber;    // "AC#" and digits; refers to PlanAircraft::ACNumber
    std::string TailNumber;  // registration
    std::string Percent;     // activity with its trailing "%"
    std::string Period;      // "WEEK", "24Hr", "12Hr", "8Hr", "6Hr", "4Hr", "2Hr" or "1Hr"
    std::string FlightType;  // "IFR" or "VFR"
    std::vector<Leg> Legs;   // in the order of the file
    bool Removed = false;    // goes to "Removed Flights.txt" instead of the plan

    std::int32_t LegCount() const { return static_cast<std::int32_t>(Legs.size()); }
    bool operator==(const Flight&) const = default;
};

}  // namespace orlo
