#include "mainwindow/SavePlan.h"

#include "core/Application.h"
#include "core/Path.h"
#include "core/PlanSideFiles.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/RecentLists.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {

std::string AskForSavePath(Context& context, std::string_view title, std::string_view startFile,
                           std::string_view filter) {
    FileDialog dialog;
    dialog.title = title;
    dialog.startFile = startFile;
    dialog.filter = filter;
    dialog.overwritePrompt = true;
    const std::string path = context.services.windows.ShowSaveDialog(dialog);
    return path.empty() ? path : context.services.files.FullPath(path);
}

MessageAnswer AskToSave(Context& context, std::string_view question) {
    return ShowMessage(context.services.messages, question, kButtonsYesNoCancel | kMarkQuestion,
                       &context.forms.frmMain);
}

MessageAnswer AskToSavePlan(Context& context) {
    return AskToSave(context, "Save the modified Flightplan?");
}

void ReportPlanNotWritten(Context& context, const std::string& path, const PlanWriteResult& written) {
    if (!written.PlanWritten) {
        ReportNotWritten(context, path);
    } else if (!written.RemovedWritten) {
        ReportNotWritten(context, JoinPath(ParentFolder(path), kRemovedFlightsName));
    }
}

void SaveFlightplan(Context& context) {
    Session& session = context.session;
    FileSystem& files = context.services.files;
    ForgetNotWritten(context);
    const PlanWriteResult plan = WriteFlightplan(files, session.plan.FlightplanPath, session.plan.Flights,
                                                 session.switches.BackupPlan);
    const bool aircraftWritten = WritePlanAircraft(session.plan, files, session.switches.BackupPlan);
    if (plan.Complete() && !aircraftWritten) ReportNotWritten(context, PlanAircraftPath(session.plan));
    ReportPlanNotWritten(context, session.plan.FlightplanPath, plan);
    session.plan.PlanModified = false;
    EnableMenus(context);
    ShowMessage(context.services.messages, "Successfully saved modified Flightplan.", kMarkInformation,
                &context.forms.frmMain);
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
        AskForSavePath(context, "Save Flightplan as...", context.session.plan.FlightplanPath);
    if (path.empty()) return;
    context.session.plan.FlightplanPath = path;
    AddRecentFlightplan(context, context.session.plan.FlightplanPath);
    SaveFlightplanCommand(context);
}

}  // namespace orlo
