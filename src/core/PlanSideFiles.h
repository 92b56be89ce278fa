#pragma once

#include <string>

#include "core/Session.h"
#include "services/Services.h"

namespace orlo {

// Aircraft.txt and Airports.txt, which stand in the folder of the flightplan. docs/plan-side-files.md tells
// their forms.

std::string PlanAircraftPath(const Session& session);
std::string PlanAirportsPath(const Session& session);

// Replaces PlanAircrafts and MaxACNumber. A missing file gives a critical message and an empty list.
void ReadPlanAircraft(Session& session, Services& services);

// Replaces PlanAirports and PlanAirportIndex. A missing file gives a critical message and an empty list.
void ReadPlanAirports(Session& session, Services& services);

// Writes PlanAircrafts, with the backup of the old file that session.BackupPlan asks for. False when it could
// not be written; the old file then stands whole.
bool WritePlanAircraft(const Session& session, FileSystem& files);

// The number behind "AC#"; 0 where none reads.
std::int32_t AircraftNumber(std::string_view acNumber);

}  // namespace orlo
