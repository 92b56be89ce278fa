#include "shell/OpenPlan.h"

#include "core/Application.h"
#include "core/FlightplanFile.h"
#include "core/PlanSideFiles.h"
#include "core/Text.h"
#include "forms/EmptyHints.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanViews.h"
#include "mainwindow/RecentLists.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/TreeSelection.h"
#include "shell/ExportTab.h"
#include "shell/Tabs.h"
#include "simulator/AircraftScan.h"
#include "simulator/MatchedAircraft.h"

namespace orlo {
namespace {

constexpr int kOpenStages = 7;

// The path to open; empty when the user cancels or the file isn't there.
std::string ChoosePlan(Context& context, std::string path) {
    Services& services = context.services;
    if (path.empty()) {
        FileDialog dialog;
        dialog.title = "Open Flightplan";
        dialog.filter = kTextFileFilter;
        dialog.startFolder = context.session.plan.FlightplanPath;
        dialog.fileMustExist = true;
        path = services.windows.ShowOpenDialog(dialog);
        if (path.empty()) return {};
    }
    if (!services.files.FileExists(path)) {
        ShowMessage(services.messages, "Flightplan file not found.", kMarkExclamation,
                    &context.forms.frmMain);
        return {};
    }
    return path;
}

void EraseOldPlan(Context& context) {
    Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    DiscardUndoSnapshot(context);
    Plan empty;
    empty.FlightplanPath = session.plan.FlightplanPath;
    session.plan = std::move(empty);
    session.fleet.FSAircrafts.clear();
    session.search = {};
    form.lvExPreview.Clear();
    form.lvTimetable.Clear();

    const FrozenForm frozen(form);
    form.tvShuffleAircraft.visible = false;
    form.tvMoveAircrafts.visible = false;
    form.tvShuffleAircraft.Clear();
    form.tvMoveAircrafts.Clear();
}

// Reads the plan, its side files and the installed aircraft. Stops at the first list that stays empty and
// gives its name; empty where all were filled. A reader that knows why its list is empty has said so.
std::string_view ReadPlan(Context& context, BusyForm& busy) {
    Session& session = context.session;
    busy.Stage("Reading Airport configuration...", 2);
    ReadPlanAirports(session.plan, context.services);
    if (session.plan.PlanAirportCount() == 0) return "airports";

    busy.Stage("Reading Aircraft configuration...", 3);
    ReadPlanAircraft(session.plan, context.services);
    if (session.plan.PlanAircraftCount() == 0) return "aircraft";

    busy.Stage("Reading Flightplan...", 4);
    ReadFlightplan(session.plan, context.services);
    if (session.plan.FlightCount() == 0) return "flights";

    busy.SetStages(kOpenStages);
    busy.Stage("Detecting FS2002 Aircraft...", 5);
    ScanAircraft(session.fleet, session.rules.Classes, context.services.files,
                 SimulatorFolder(session, context.services.machineSettings), true);
    return session.fleet.FSAircraftCount() == 0 ? "aircraft of the simulator" : std::string_view();
}

void TellNotLoaded(Context& context, std::string_view missing) {
    MainForm& form = context.forms.frmMain;
    RefreshShuffleLabel(form);
    form.sbMain.text =
        Concat("Flightplan not loaded: no ", missing, " found [", context.session.plan.FlightplanPath, "].");
}

void ShowPlan(Context& context, BusyForm& busy) {
    Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    busy.Stage("Refreshing...", 6);
    FillAircraftTrees(form, session);
    ResetTimetableView(context);
    ResetExportView(context);
    ResetMoverView(context);
    ClearPlanHints(form);
    form.tvShuffleAircraft.visible = true;
    form.tvMoveAircrafts.visible = true;
    session.plan.PlanLoaded = true;
    EnableAll(context);
    RefreshShuffleLabel(form);
    form.sbMain.text = Concat("Flightplan loaded with ", session.plan.FlightCount(), " flights [",
                              session.plan.FlightplanPath, "].");
}

void OfferMissingAircraft(Context& context) {
    const MessageAnswer answer = ShowMessage(
        context.services.messages,
        "Some aircraft could not been found on your system. Would you like to see all related flights?",
        kButtonsYesNo | kMarkExclamation, &context.forms.frmMain);
    if (answer == MessageAnswer::Yes) ShowReport(context, SearchMode::AircraftNotFound);
}

}  // namespace

bool AllPlanAircraftInstalled(const Session& session) {
    return MatchedAircraft(session.plan, session.fleet).AllInstalled();
}

void OpenFlightplan(Context& context, std::string path) {
    Session& session = context.session;
    if (IsUnsaved(session.plan)) {
        const MessageAnswer answer = AskToSavePlan(context);
        if (answer == MessageAnswer::Cancel) return;
        if (answer == MessageAnswer::Yes && !SaveBeforeItGoes(context)) return;
    }
    path = ChoosePlan(context, std::move(path));
    if (path.empty()) return;

    session.plan.FlightplanPath = context.services.files.FullPath(path);
    session.plan.PlanLoaded = false;
    session.plan.PlanModified = false;
    session.shuffle.HasResult = false;
    ForgetResultCounts(context.forms.frmMain);
    EnableAll(context);
    BusyForm busy(context, context.forms.frmMain, kOpenStages);
    busy.Stage("Cleaning Memory...", 1);
    EraseOldPlan(context);
    if (const std::string_view missing = ReadPlan(context, busy); !missing.empty()) {
        busy.CloseProgress();
        TellNotLoaded(context, missing);
        return;
    }
    ShowPlan(context, busy);
    const bool aircraftMissing = session.switches.ACCheck && !AllPlanAircraftInstalled(session);
    busy.CloseProgress();
    AddRecentFlightplan(context, session.plan.FlightplanPath);
    if (aircraftMissing) OfferMissingAircraft(context);
    ActivateTab(context);
}

}  // namespace orlo
