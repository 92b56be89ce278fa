#pragma once

#include <cstdint>

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The entries of the open project, in lvProject and the frame below it. The key of a row is the flightplan's
// path.

// Fills the list anew from the project's entries; of two of one flightplan it shows the first.
void ShowProjectEntries(Context& context);
// Shows the row in the frame; -1 clears the frame. Enables what can be done with it.
void ShowProjectEntry(Context& context, std::int32_t row);

void AddProjectEntry(Context& context);
void ChangeProjectFlightplan(Context& context);
void ChangeProjectAircraft(Context& context);
// Asks first. The entries then stand in the order in which the list shows them.
void DeleteProjectEntries(Context& context);
// Takes what is typed into the description of the shown entry.
void TakeProjectDescription(Context& context);
void OnSelectProjectRow(Context& context);

}  // namespace orlo
