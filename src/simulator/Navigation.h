#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/AirportRecord.h"
#include "core/Plan.h"

namespace orlo {

// Single questions about the open plan's airports. Passes over many legs take PlanPositions.

// Nautical miles; 0 for equal codes (compared exactly), -1 when a code is not in the plan, its coordinates
// can't be read, or two codes lie at one place.
std::int32_t GetDistance(const Plan& plan, std::string_view from, std::string_view to);

// Degrees, 0 to 359; -1 for equal codes and where the distance fails.
std::int32_t GetCourse(const Plan& plan, std::string_view from, std::string_view to);

// The distance without a plan, over the scenery's airports, which the caller has read. Codes are compared
// exactly. -1 when there are no airports or the coordinates of a found one can't be read. A code that isn't
// found counts as 0 degrees north, 0 degrees west.
std::int32_t GetSceneryDistance(const std::vector<AirportRecord>& airports, std::string_view from,
                                std::string_view to);

// Departure plus the flight time in whole minutes; 15 minutes where distance (nautical miles) or speed
// (knots) is below 1.
std::int64_t EstimateArrival(std::int64_t departureSeconds, std::int32_t distance, std::int32_t speed);

// The arrival in the form of its departure: "d/HH:MM:SS" for the period "WEEK" (case aside), else "HH:MM:SS".
// A week arrival behind midnight goes to the next day, however long the flight. The departure text comes back
// as it is when it can't be read, and when the speed is below 1.
std::string GetArrivalTime(std::int32_t distance, std::string_view departureText, std::string_view periodText,
                           std::int32_t speed);

// The same for an aircraft of the plan. A valid place in PlanAircrafts lends its cruise speed in place of
// `speed`; below 1, such a speed gives 15 minutes, and where it is no number the departure text comes back.
std::string GetArrivalTime(const Plan& plan, std::int32_t distance, std::string_view departureText,
                           std::string_view periodText, std::int32_t aircraftIndex, std::int32_t speed);

}  // namespace orlo
