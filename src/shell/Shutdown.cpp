#include "shell/Shutdown.h"

#include "mainwindow/BusyForm.h"
#include "mainwindow/SavePlan.h"
#include "projects/ProjectCommands.h"
#include "shell/SettingsMirror.h"
#include "shell/StartUp.h"
#include "shell/SystemEnd.h"

namespace orlo {
namespace {

constexpr int kCleaningStages = 2;

// What was derived goes before what it was derived from.
void EraseMemory(Context& context) {
    Session& session = context.session;
    DiscardUndoSnapshot(context);
    session.scenery = {};
    session.rules.Airlines = {};
    session.shuffle.RunAirlines = {};
    session.search = {};
    session.plan = {};
    session.fleet = {};
    session.project = {};
}

}  // namespace

bool Shutdown(Context& context) {
    Session& session = context.session;
    context.services.progress.Close();
    if (context.services.windows.TimerArmed(kSplashTimer)) CloseSplash(context);
    if (IsUnsaved(session.plan)) {
        const MessageAnswer answer = AskToSavePlan(context);
        if (answer == MessageAnswer::Cancel) return false;
        if (answer == MessageAnswer::Yes && !SaveInFrameBeforeItGoes(context)) return false;
    }
    if (IsUnsaved(session.project)) {
        const MessageAnswer answer = AskToSave(context, "Save the modified Project?");
        if (answer == MessageAnswer::Cancel) return false;
        if (answer == MessageAnswer::Yes && !SaveProjectBeforeItGoes(context)) return false;
    }
    if (session.plan.DiffersFromFile || session.project.DiffersFromFile) NoteUnsavedEnd(context);
    BusyForm busy(context, context.forms.frmMain, kCleaningStages);
    WriteSettings(context);
    busy.Stage("Cleaning Memory...", 1);
    EraseMemory(context);
    busy.CloseProgress();
    context.forms.frmMain.systemMenuAbout = false;
    context.frame.limits.RemoveWindowLimits(context.forms.frmMain);
    return true;
}

}  // namespace orlo
