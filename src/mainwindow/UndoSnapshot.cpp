#include "mainwindow/UndoSnapshot.h"

#include "core/Application.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/BulkOperation.h"
#include "mainwindow/Context.h"
#include "mainwindow/PlanViews.h"
#include "mainwindow/TreeSelection.h"

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
    MainForm& form = context.forms.frmMain;
    {
        const BusyMainWindow busy(context);
        OpenProgress(context, "Undo...", kUndoStages, 1);
        PutBack(context);
        DiscardUndoSnapshot(context);
        NextProgress(context, "Refreshing...", 2);
        {
            const FrozenForm frozen(form);
            FillAircraftTrees(form, context.session);
        }
        RefreshShuffleLabel(form);
        ResetTimetableView(context);
        ResetExportView(context);
        ResetMoverView(context);
        EnablePlanCommands(context);
        context.services.progress.Close();
    }
    ShowMessage(context.services.messages, "Successfully completed undo.", kMarkInformation, &form);
}

}  // namespace orlo
