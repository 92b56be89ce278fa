#include "mainwindow/PlanChange.h"

#include "core/Application.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanViews.h"
#include "mainwindow/TreeSelection.h"
#include "mainwindow/UndoSnapshot.h"

namespace orlo {
namespace {

void ShowTreesAnew(Context& context, const PlanChange& change, BusyForm& busy) {
    MainForm& form = context.forms.frmMain;
    if (change.stages > 0) busy.Stage("Refreshing...", change.stages - 1);
    {
        const FrozenForm frozen(form);
        FillAircraftTrees(form, context.session);
    }
    RefreshShuffleLabel(form);
}

void ResetViews(Context& context, const PlanChange& change) {
    ResetTimetableView(context);
    ResetExportView(context);
    if (change.changesAircraft) ResetMoverView(context);
}

std::string RunInFrame(Context& context, Form& form, const PlanChange& change) {
    BusyForm busy(context, form, change.stages);
    if (!change.firstStage.empty()) busy.Stage(change.firstStage, 1);
    if (change.takesSnapshot) TakeUndoSnapshot(context);
    std::string done = change.work(busy);
    if (change.changesAircraft) ShowTreesAnew(context, change, busy);
    if (change.resetsViews) ResetViews(context, change);
    if (change.marksModified) MarkPlanModified(context);
    return done;
}

}  // namespace

void ChangePlan(Context& context, Form& form, const PlanChange& change) {
    const std::string done = RunInFrame(context, form, change);
    if (!done.empty()) ShowMessage(context.services.messages, done, kMarkInformation, &form);
}

void ShowPlanAnew(Context& context, Views views) {
    PlanChange change;
    change.work = [](BusyForm&) { return std::string(); };
    change.stages = 2;
    change.changesAircraft = true;
    change.takesSnapshot = false;
    change.marksModified = false;
    change.resetsViews = views == Views::Reset;
    ChangePlan(context, context.forms.frmMain, change);
}

void MarkPlanModified(Context& context) {
    context.session.plan.PlanModified = true;
    EnableMenus(context);
}

}  // namespace orlo
