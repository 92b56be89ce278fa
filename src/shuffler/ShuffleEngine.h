#pragma once

#include <cstdint>
#include <string>

#include "core/Session.h"
#include "services/Services.h"

namespace orlo {

struct ShuffleResult {
    bool succeeded = false;
    std::int32_t removed = 0;   // flights that got the Removed mark
    std::int32_t assigned = 0;  // flights that got an aircraft
};

// Gives every flight of the plan without a Removed mark a new aircraft of session.plan.PlanAircrafts, or the
// Removed mark where none fits, by the options of the session. docs/shuffle.md tells how. Reads the scenery
// on first need, seeds the random source from the clock, leaves the sets with their shares and counts in
// session.shuffle.RunAirlines, says in HasResult whether they are those of a whole run, and adds to the
// UsageCount of the plan's aircraft. With session.switches.DebugOn the two logs are written into the folder
// of `flightplanPath`. The caller has shown the progress window.
//
// A flight level that is no number ends the run with a critical message and `succeeded` false; flights
// decided up to then keep their new state, that flight and all behind it stay as they were.
ShuffleResult ShuffleFlightplan(Session& session, Services& services, const std::string& flightplanPath);

}  // namespace orlo
