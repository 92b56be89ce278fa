#pragma once

#include <string>

#include "mainwindow/Context.h"

namespace orlo {

// Adds a path to the five newest, the newest first. A path in the list already, case aside, moves to the top
// in its new spelling; one on top changes nothing.
void AddRecentFlightplan(Context& context, const std::string& path);
void AddRecentProject(Context& context, const std::string& path);

// Shows the filled entries with their paths as captions and hides the empty ones.
void RebuildRecentMenus(Context& context);

}  // namespace orlo
