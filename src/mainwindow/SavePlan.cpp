#include "mainwindow/SavePlan.h"

#include <vector>

#include "core/Application.h"
#include "core/FileBackup.h"
#include "core/PlanSideFiles.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/KeepInMemory.h"
#include "mainwindow/RecentLists.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {

namespace {

constexpr std::string_view kSaveReason = "Save Flightplan";

// Makes the backups that are due, and keeps what would be lost otherwise. False where neither can be done.
bool SecureOldFiles(Context& context) {
    const Plan& plan = context.session.plan;
    FileSystem& files = context.services.files;
    std::vector<std::string> going;
    for (const std::string& path : {plan.FlightplanPath, PlanAircraftPath(plan)}) {
        const bool isDue = context.session.switches.BackupPlan && files.FileExists(path) &&
                           !files.FileExists(BackupPath(path));
        const bool backedUp = isDue && BackUpOnce(files, path);
        const bool needsStandIn = isDue && !context.session.kept.StandIns.Contains(path);
        if (!backedUp && (needsStandIn || !plan.Known.MayGo(files, path))) going.push_back(path);
    }
    const std::string removed = RemovedFlightsPath(plan.FlightplanPath);
    if (!plan.Known.MayGo(files, removed)) going.push_back(removed);
    if (going.empty()) return true;
    if (!KeepAside(context, kSaveReason, going)) return false;
    for (const std::string& path : going) context.session.kept.StandIns.Add(path, true);
    return true;
}

// What this session wrote under another name, or in another plan's folder, holds an earlier state of the
// plan; so does the Aircraft.txt beside both.
void ForgetOtherPlan(Plan& plan, const std::string& path) {
    if (path != plan.FlightplanPath) plan.Known = {};
}

// Whether all could be written.
bool WritePlanFiles(Context& context) {
    Plan& plan = context.session.plan;
    FileSystem& files = context.services.files;
    const std::string aircraftPath = PlanAircraftPath(plan);
    if (!SecureOldFiles(context)) {
        ReportNotWritten(context, plan.FlightplanPath);
        return false;
    }
    const PlanWriteResult written = WriteFlightplan(files, plan.FlightplanPath, plan.Flights);
    const bool aircraftWritten = WritePlanAircraft(plan, files);
    if (written.Complete() && !aircraftWritten) ReportNotWritten(context, aircraftPath);
    ReportPlanNotWritten(context, plan.FlightplanPath, written);
    if (written.PlanHash) plan.Known.KnowWritten(files, plan.FlightplanPath, *written.PlanHash);
    if (written.RemovedHash)
        plan.Known.KnowWritten(files, RemovedFlightsPath(plan.FlightplanPath), *written.RemovedHash);
    return written.Complete() && aircraftWritten;
}

}  // namespace

std::string AskForSavePath(Context& context, std::string_view title, std::string_view startFile,
                           std::string_view filter, ChosenFile chosen) {
    FileDialog dialog;
    dialog.title = title;
    dialog.startFile = startFile;
    dialog.filter = filter;
    dialog.overwritePrompt = true;
    std::string path = context.services.windows.ShowSaveDialog(dialog);
    if (path.empty()) return path;
    path = context.services.files.FullPath(path);
    if (chosen == ChosenFile::IsKeptByCaller || KeepAside(context, title, path)) return path;
    ReportNotWritten(context, path);
    return {};
}

MessageAnswer AskToSave(Context& context, std::string_view question) {
    return ShowMessage(context.services.messages, question, kButtonsYesNoCancel | kMarkQuestion,
                       &context.forms.frmMain);
}

MessageAnswer AskToSavePlan(Context& context) {
    return AskToSave(context, "Save the modified Flightplan?");
}

void ReportPlanNotWritten(Context& context, const std::string& path, const PlanWriteResult& written) {
    if (!written.PlanWritten()) {
        ReportNotWritten(context, path);
    } else if (!written.RemovedWritten()) {
        ReportNotWritten(context, RemovedFlightsPath(path));
    }
}

void SaveFlightplan(Context& context) {
    Plan& plan = context.session.plan;
    ForgetNotWritten(context);
    plan.DiffersFromFile = !WritePlanFiles(context);
    plan.PlanModified = false;
    EnableMenus(context);
    ShowMessage(context.services.messages, "Successfully saved modified Flightplan.", kMarkInformation,
                &context.forms.frmMain);
}

bool IsUnsaved(const Plan& plan) {
    return plan.PlanModified || plan.DiffersFromFile;
}

bool SaveBeforeItGoes(Context& context) {
    SaveFlightplan(context);
    return !context.session.plan.DiffersFromFile || KeepPlanInMemory(context, kSaveReason);
}

bool SaveInFrameBeforeItGoes(Context& context) {
    const BusyForm busy(context, context.forms.frmMain);
    return SaveBeforeItGoes(context);
}

void SaveFlightplanCommand(Context& context) {
    const BusyForm busy(context, context.forms.frmMain);
    SaveFlightplan(context);
}

void SaveFlightplanAs(Context& context) {
    // After an open that failed there is nothing to write, and the files on the disk must not be replaced.
    if (!context.session.plan.PlanLoaded) {
        context.forms.frmMain.sbMain.text = "No Flightplan is loaded that could be saved.";
        return;
    }
    const std::string path =
        AskForSavePath(context, "Save Flightplan as...", context.session.plan.FlightplanPath, kTextFileFilter,
                       ChosenFile::IsKeptByCaller);
    if (path.empty()) return;
    ForgetOtherPlan(context.session.plan, path);
    context.session.plan.FlightplanPath = path;
    AddRecentFlightplan(context, context.session.plan.FlightplanPath);
    SaveFlightplanCommand(context);
}

}  // namespace orlo
