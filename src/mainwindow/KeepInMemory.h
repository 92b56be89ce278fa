#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// Keeps the open plan as one entry of the kept files, from memory: the flightplan, Aircraft.txt and, where
// flights are removed, "Removed Flights.txt", as SaveFlightplan would write them and under the paths of a
// save. Nothing is written there, and no mark changes. False where that fails.
[[nodiscard]] bool KeepPlanInMemory(Context& context, std::string_view reason);

}  // namespace orlo
