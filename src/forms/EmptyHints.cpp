#include "forms/EmptyHints.h"

namespace orlo {
namespace {

constexpr std::string_view kBeginPlan = "Open a flightplan to begin (File, Open Flightplan, Ctrl+O).";
constexpr std::string_view kBeginProject = "Begin or open a project (File, New Project or Open Project).";

void SetPlanHints(MainForm& form, std::string_view hint) {
    for (std::string* shown : {&form.tvShuffleAircraft.emptyHint, &form.tvMoveAircrafts.emptyHint,
                               &form.lvExPreview.emptyHint, &form.lvTimetable.emptyHint}) {
        *shown = hint;
    }
}

}  // namespace

void SetEmptyHints(MainForm& form) {
    SetPlanHints(form, kBeginPlan);
    form.lvProject.emptyHint = kBeginProject;
}

void ClearPlanHints(MainForm& form) {
    SetPlanHints(form, {});
}

void ClearProjectHint(MainForm& form) {
    form.lvProject.emptyHint.clear();
}

}  // namespace orlo
