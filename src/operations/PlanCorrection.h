#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// What the tools that rewrite all flights of the plan have in common.

// Add the fields in front of the legs, and those of one leg, to the row that is being written.
void AddFlightFields(const FlightView& flight, FlightList& flights);
void AddLegFields(const LegView& leg, FlightList& flights);

// Runs `correct` in the frame of a bulk operation, with an undo step of its own. The plan counts as modified
// whether or not anything changed. Closes with the message `done`.
void RunPlanCorrection(Context& context, void (*correct)(Context&), std::string_view done);

}  // namespace orlo
