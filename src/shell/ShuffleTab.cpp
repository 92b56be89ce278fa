#include "shell/ShuffleTab.h"

#include "core/Application.h"
#include "core/Number.h"
#include "core/Text.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/BulkOperation.h"
#include "mainwindow/PlanViews.h"
#include "mainwindow/TreeSelection.h"
#include "shuffler/BuildAircraftList.h"
#include "shuffler/ShuffleEngine.h"

namespace orlo {
namespace {

constexpr int kShuffleStages = 4;

void ReadOptions(Context& context) {
    Session& session = context.session;
    const MainForm& form = context.forms.frmMain;
    session.shuffle.ChangeIFRVFR = form.ckIFRVFR.checked;
    session.shuffle.OverwriteTailNumber = form.ckOverwriteTailNumber.checked;
    session.shuffle.CheckVisitedAirports = form.ckCheckVisitedAirports.checked;
    session.shuffle.RemoveMinus = form.ckRemoveMinus.checked;
    session.shuffle.CheckFL = form.ckCheckFL.checked;
}

ShuffleResult Shuffle(Context& context) {
    Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    const BusyMainWindow busy(context);
    ReadOptions(context);
    OpenProgress(context, "Creating Aircraft list...", kShuffleStages, 1);
    TakeUndoSnapshot(context);
    BuildAircraftList(CheckedShuffleAircraft(form, session), session.fleet, session.switches.StartNumber,
                      session.plan);
    NextProgress(context, "Rearranging AI Traffic...", 2);
    const ShuffleResult result = ShuffleFlightplan(session, context.services, session.plan.FlightplanPath);

    context.services.progress.SetMax(kShuffleStages);
    NextProgress(context, "Refreshing...", 3);
    FillAircraftTrees(form, session);
    RefreshShuffleLabel(form);
    ResetTimetableView(context);
    ResetExportView(context);
    ResetMoverView(context);
    MarkPlanModified(context);
    context.services.progress.Close();
    return result;
}

void RefuseStartNumber(Context& context, Event& event, std::string_view reason) {
    ShowMessage(context.services.messages, reason, kMarkExclamation, &context.forms.frmMain);
    event.refused = true;
}

}  // namespace

void OnShuffle(Context& context) {
    const ShuffleResult result = Shuffle(context);
    if (!result.succeeded) return;
    ShowMessage(
        context.services.messages,
        Concat(result.removed, " flights removed from Flightplan. ", result.assigned, " flights remaining."),
        kMarkInformation, &context.forms.frmMain);
}

void OnCalcStartNumber(Context& context) {
    Session& session = context.session;
    if (session.plan.PlanAircraftCount() == 0) return;
    session.switches.StartNumber = NextStartNumber(session.plan);
    context.forms.frmMain.txtStartNumber.text = std::to_string(session.switches.StartNumber);
}

void OnLeaveStartNumber(Context& context, Event& event) {
    const auto number = ParseWholeNumber(context.forms.frmMain.txtStartNumber.text);
    if (!number) {
        RefuseStartNumber(context, event, "Number should be a numeric value.");
    } else if (*number < 1) {
        RefuseStartNumber(context, event, "Number should be greater than 0.");
    } else {
        context.session.switches.StartNumber = *number;
    }
}

}  // namespace orlo
