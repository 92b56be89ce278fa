#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "mainwindow/BusyForm.h"
#include "mainwindow/Context.h"

namespace orlo {

// An operation that changes the open plan as a whole.
struct PlanChange {
    // Changes the plan and gives the closing message; an empty one is not shown.
    std::function<std::string(BusyForm&)> work;
    std::string_view firstStage = {};  // empty: the work has none
    int stages = 0;                    // maximum of the progress; `stages` - 1 shows the trees anew
    bool changesAircraft = false;      // PlanAircrafts too: the trees and the mover's view follow
    bool takesSnapshot = true;         // an undo step of its own
    bool marksModified = true;         // even if nothing changed
    bool resetsViews = true;
};

// Runs the change in the frame of a bulk operation over the form: disables it under the hourglass, shows the
// first stage, takes the undo snapshot, works, resets the views, marks the plan modified, enables the form,
// and closes with the message.
void ChangePlan(Context& context, Form& form, const PlanChange& change);

// Whether search, timetable and mover keep what they show.
enum class Views { Kept, Reset };

// Fills the trees of the open plan anew, over the main window, after its aircraft or the installed ones have
// changed.
void ShowPlanAnew(Context& context, Views views);

// To be called after everything that changes flights or plan aircraft.
void MarkPlanModified(Context& context);

}  // namespace orlo
