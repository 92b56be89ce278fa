#pragma once

#include <string>

#include "core/Plan.h"
#include "services/Services.h"

namespace orlo {

// Aircraft.txt and Airports.txt, which stand in the folder of the flightplan. docs/plan-side-files.md tells
// their forms.

std::string PlanAircraftPath(const Plan& plan);
std::string PlanAirportsPath(const Plan& plan);

// Replaces PlanAircrafts and MaxACNumber. A missing file gives a critical message and an empty list.
void ReadPlanAircraft(Plan& plan, Services& services);

// Replaces PlanAirports and PlanAirportIndex. A missing file gives a critical message and an empty list.
void ReadPlanAirports(Plan& plan, Services& services);

// What WritePlanAircraft writes.
std::string FormatPlanAircraft(const Plan& plan);

// Writes PlanAircrafts. False when the file could not be written; the old one then stands whole.
bool WritePlanAircraft(Plan& plan, FileSystem& files);

// The number behind "AC#"; 0 where none reads.
std::int32_t AircraftNumber(std::string_view acNumber);

}  // namespace orlo
