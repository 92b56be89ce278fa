#include "mainwindow/UndoSnapshot.h"

#include "mainwindow/Context.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanChange.h"

namespace orlo {
namespace {

constexpr int kUndoStages = 3;

void PutBack(Context& context) {
    Session& session = context.session;
    session.search = {};
    session.plan.Flights = context.undo.Flights;
    session.plan.PlanAircrafts = context.undo.PlanAircrafts;
}

}  // namespace

void TakeUndoSnapshot(Context& context) {
    if (!context.session.switches.Undo) return;
    context.undo.Flights = context.session.plan.Flights;
    context.undo.PlanAircrafts = context.session.plan.PlanAircrafts;
    context.undo.Held = true;
    EnableMenus(context);
}

void TakeFirstUndoSnapshot(Context& context) {
    if (!context.undo.Held) TakeUndoSnapshot(context);
}

void DiscardUndoSnapshot(Context& context) {
    context.undo = UndoSnapshot();
    EnableMenus(context);
}

void RestoreUndoSnapshot(Context& context) {
    PlanChange change;
    change.work = [&](BusyForm&) -> std::string {
        PutBack(context);
        DiscardUndoSnapshot(context);
        return "Successfully completed undo.";
    };
    change.firstStage = "Undo...";
    change.stages = kUndoStages;
    change.changesAircraft = true;
    change.takesSnapshot = false;
    change.marksModified = false;
    ChangePlan(context, context.forms.frmMain, change);
}

}  // namespace orlo
