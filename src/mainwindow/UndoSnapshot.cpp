#include "mainwindow/UndoSnapshot.h"

#include "mainwindow/Context.h"

namespace orlo {

void TakeUndoSnapshot(Context& context) {
    if (!context.session.Undo) return;
    context.undo.Flights = context.session.Flights;
    context.undo.PlanAircrafts = context.session.PlanAircrafts;
    context.forms.frmMain.mnuToolsUndo.enabled = true;
}

void DiscardUndoSnapshot(Context& context) {
    context.undo = UndoSnapshot();
    context.forms.frmMain.mnuToolsUndo.enabled = false;
}

}  // namespace orlo
