#include "mainwindow/UndoSnapshot.h"

#include "mainwindow/Context.h"
#include "mainwindow/PlanChange.h"
#include "mainwindow/PlanViews.h"

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
    context.forms.frmMain.mnuToolsUndo.enabled = true;
}

void TakeFirstUndoSnapshot(Context& context) {
    if (!context.forms.frmMain.mnuToolsUndo.enabled) TakeUndoSnapshot(context);
}

void DiscardUndoSnapshot(Context& context) {
    context.undo = UndoSnapshot();
    context.forms.frmMain.mnuToolsUndo.enabled = false;
}

void RestoreUndoSnapshot(Context& context) {
    PlanChange change;
    change.work = [&](BusyForm&) -> std::string {
        PutBack(context);
        DiscardUndoSnapshot(context);
        EnablePlanCommands(context);
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
