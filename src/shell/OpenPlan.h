#pragma once

#include <string>

#include "mainwindow/Context.h"

namespace orlo {

// Opens a plan with its side files, scans the installed aircraft and fills the trees. An empty path asks for
// one. The plan that is open stays as it is where the user cancels or the file doesn't exist. Where the new
// plan can't be read, none is open afterwards, and the status bar says what is missing.
void OpenFlightplan(Context& context, std::string path);

// Whether each aircraft of the plan is installed, by title.
bool AllPlanAircraftInstalled(const Session& session);

}  // namespace orlo
