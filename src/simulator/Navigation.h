#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/AirportRecord.h"
#include "core/Plan.h"

namespace orlo {

// Single questions about airports; a pass over many legs uses PlanPositions.

// Nautical miles; 0 for equal codes (compared exactly), -1 when a code is not in the plan, its coordinates
// can't be read, or the two lie at one place or at opposite ends of the earth.
std::int32_t GetDistance(const Plan& plan, std::string_view from, std::string_view to);

// Degrees, 0 to 359; -1 for equal codes, and where GetDistance or GreatCircleCourse gives -1.
std::int32_t GetCourse(const Plan& plan, std::string_view from, std::string_view to);

// The same over the scenery's airports, which the caller has read. Codes are compared exactly. -1 also when
// there are no airports. A code that isn't found counts as 0 degrees north, 0 degrees west.
std::int32_t GetSceneryDistance(const std::vector<AirportRecord>& airports, std::string_view from,
                                std::string_view to);

// Departure plus the flight time in whole minutes; 15 minutes where distance (nautical miles) or speed
// (knots) is below 1.
std::int64_t EstimateArrival(std::int64_t departureSeconds, std::int32_t distance, std::int32_t speed);

// The arrival in the form of its departure: "d/HH:MM:SS" for the period "WEEK" (case aside), else "HH:MM:SS".
// A week arrival behind midnight goes to the next day, however long the flight. When the departure can't be
// read or the speed is below 1, the departure text comes back as it is.
std::string GetArrivalTime(std::int32_t distance, std::string_view departureText, std::string_view periodText,
                           std::int32_t speed);

// The same for an aircraft of the plan: with a valid place in PlanAircrafts its cruise speed counts instead
// of `speed`. A cruise speed below 1 gives 15 minutes; for one that is no number the departure text comes
// back.
std::string GetArrivalTime(const Plan& plan, std::int32_t distance, std::string_view departureText,
                           std::string_view periodText, std::int32_t aircraftIndex, std::int32_t speed);

}  // namespace orlo
