#include "mainwindow/PlanChange.h"

#include "core/Application.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanViews.h"
#include "mainwindow/TreeSelection.h"
#include "mainwindow/UndoSnapshot.h"

namespace orlo {
namespace {

constexpr std::string_view kRefreshing = "Refreshing...";

void ShowTreesAnew(Context& context) {
    MainForm& form = context.forms.frmMain;
    {
        const FrozenForm frozen(form);
        FillAircraftTrees(form, context.session);
    }
    RefreshShuffleLabel(form);
}

void ResetViews(Context& context) {
    ResetTimetableView(context);
    ResetExportView(context);
}

std::string RunInFrame(Context& context, Form& form, const PlanChange& change) {
    BusyForm busy(context, form, change.stages);
    if (!change.firstStage.empty()) busy.Stage(change.firstStage, 1);
    if (change.takesSnapshot) TakeUndoSnapshot(context);
    std::string done = change.work(busy);
    if (change.changesAircraft && !change.firstStage.empty()) busy.Stage(kRefreshing, change.stages - 1);
    if (change.changesAircraft) ShowTreesAnew(context);
    ResetViews(context);
    if (change.changesAircraft) ResetMoverView(context);
    if (change.marksModified) MarkPlanModified(context);
    return done;
}

}  // namespace

void ChangePlan(Context& context, Form& form, const PlanChange& change) {
    const std::string done = RunInFrame(context, form, change);
    if (!done.empty()) ShowMessage(context.services.messages, done, kMarkInformation, &form);
}

void ShowPlanAnew(Context& context) {
    BusyForm busy(context, context.forms.frmMain, 1);
    busy.Stage(kRefreshing, 1);
    ShowTreesAnew(context);
    ResetViews(context);
    ResetMoverView(context);
}

void MarkPlanModified(Context& context) {
    context.session.plan.PlanModified = true;
    EnableMenus(context);
}

}  // namespace orlo
