#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// The frame of the tools that rewrite all flights of the plan. Runs `correct` in the frame of a bulk
// operation, with an undo step of its own. The plan counts as modified whether or not anything changed.
// Closes with the message `done`.
void RunPlanCorrection(Context& context, void (*correct)(Context&), std::string_view done);

}  // namespace orlo
