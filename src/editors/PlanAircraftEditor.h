#pragma once

#include <string_view>

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// Opens frmAircraftEdit, modal. Its commands change the plan's flights and aircraft at once; unless the user
// saves, both are as before when it closes. True when something changed and stays. PlanModified, the undo
// snapshot and the views are left alone.
bool EditPlanAircraft(Context& context);

// The menu entry: after changes that stay, builds trees and views of the main window anew and marks the plan
// modified. The undo snapshot stays.
void OnEditPlanAircraft(Context& context);

// Procedures of the dialog's buttons and its close box, which asks where something changed.
void SavePlanAircraft(Context& context);
void CancelPlanAircraft(Context& context);
void OnClosePlanAircraft(Context& context, Event& event);

// Yes to a question of the dialog.
bool UserAgrees(Context& context, std::string_view question);

// Puts the plan's aircraft into lvAircrafts and cmAircraft anew. No entry of cmAircraft is selected then.
void ShowPlanAircraft(Context& context);
// Puts them into cmAircraft alone; the entry at the place of the selected one is selected again.
void FillSubstitutes(Context& context);

}  // namespace orlo
