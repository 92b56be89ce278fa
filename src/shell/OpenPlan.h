#pragma once

#include <string>

#include "mainwindow/Context.h"

namespace orlo {

// Opens a plan with its side files, scans the installed aircraft and fills the trees; an empty path asks for
// one. After a failed open no plan is open, even where one was before.
void OpenFlightplan(Context& context, std::string path);

// Whether each aircraft of the plan is installed, by title.
bool AllPlanAircraftInstalled(const Session& session);

}  // namespace orlo
