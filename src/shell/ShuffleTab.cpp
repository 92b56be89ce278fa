#include "shell/ShuffleTab.h"

#include "core/Application.h"
#include "core/Number.h"
#include "core/Text.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/PlanChange.h"
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

// Gives the closing message; empty where the shuffle failed, of which the user has been told.
std::string Shuffle(Context& context, BusyForm& busy) {
    Session& session = context.session;
    ReadOptions(context);
    BuildAircraftList(CheckedShuffleAircraft(context.forms.frmMain, session), session.fleet,
                      session.switches.StartNumber, session.plan);
    busy.Stage("Rearranging AI Traffic...", 2);
    const ShuffleResult result = ShuffleFlightplan(session, context.services, session.plan.FlightplanPath);
    busy.SetStages(kShuffleStages);
    if (!result.succeeded) return {};
    return Concat(result.removed, " flights removed from Flightplan. ", result.assigned,
                  " flights remaining.");
}

void RefuseStartNumber(Context& context, Event& event, std::string_view reason) {
    ShowMessage(context.services.messages, reason, kMarkExclamation, &context.forms.frmMain);
    event.refused = true;
}

}  // namespace

void OnShuffle(Context& context) {
    PlanChange change;
    change.work = [&](BusyForm& busy) { return Shuffle(context, busy); };
    change.firstStage = "Creating Aircraft list...";
    change.stages = kShuffleStages;
    change.changesAircraft = true;
    ChangePlan(context, context.forms.frmMain, change);
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
