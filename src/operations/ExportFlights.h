#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Writes the search results to a plan of their own, whose path is asked for. A new flight that was given up,
// and stands behind the results, is written too but not counted. The plan itself stays as it is.
void ExportFlights(Context& context);

// Writes all flights of the plan that are not among the search results, removed ones as removed.
void ExportRemainder(Context& context);

}  // namespace orlo
