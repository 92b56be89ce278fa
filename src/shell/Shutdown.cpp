#include "shell/Shutdown.h"

#include "mainwindow/BulkOperation.h"
#include "mainwindow/SavePlan.h"
#include "shell/SettingsMirror.h"
#include "shell/StartUp.h"

namespace orlo {
namespace {

constexpr int kCleaningStages = 2;

// In this order: what was derived goes before what it was derived from.
void EraseMemory(Context& context) {
    Session& session = context.session;
    DiscardUndoSnapshot(context);
    session.Airports = {};
    session.Airlines = {};
    session.RunAirlines = {};
    session.Flights.Clear();
    session.ClearSearch();
    session.PlanAircrafts = {};
    session.PlanAirports = {};
    session.PlanAirportIndex.Clear();
    session.FSAircrafts = {};
}

}  // namespace

bool Shutdown(Context& context) {
    Session& session = context.session;
    context.services.progress.Close();
    if (context.services.windows.TimerArmed(kSplashTimer)) CloseSplash(context);
    if (session.PlanModified) {
        const MessageAnswer answer = AskToSavePlan(context);
        if (answer == MessageAnswer::Cancel) return false;
        if (answer == MessageAnswer::Yes) SaveFlightplanCommand(context);
    }
    if (session.ProjectModified) {
        const MessageAnswer answer = AskToSave(context, "Save the modified Project?");
        if (answer == MessageAnswer::Cancel) return false;
        if (answer == MessageAnswer::Yes) {
            context.services.windows.ShowNotBuilt(context.forms.frmMain.mnuFileSaveProject.name);
            return false;
        }
    }
    const BusyMainWindow busy(context);
    WriteSettings(context);
    OpenProgress(context, "Cleaning Memory...", kCleaningStages, 1);
    EraseMemory(context);
    context.services.progress.Close();
    context.forms.frmMain.systemMenuAbout = false;
    context.frame.limits.RemoveWindowLimits(context.forms.frmMain);
    return true;
}

}  // namespace orlo
