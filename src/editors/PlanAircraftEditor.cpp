#include "editors/PlanAircraftEditor.h"

#include <memory>
#include <utility>
#include <vector>

#include "core/Application.h"
#include "core/Text.h"
#include "editors/PlanAircraftRows.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/PlanChange.h"

namespace orlo {
namespace {

// Rows of aircraft that no tree shows either are taken out, so that a row's place stays its place in
// FSAircrafts.
void ShowInstalledAircraft(Context& context) {
    const Fleet& fleet = context.session.fleet;
    ListView& list = context.forms.frmAircraftEdit.lvFSAircraft;
    list.ShowSource(std::make_shared<AvailableAircraftRows>(context.session.plan, fleet),
                    fleet.FSAircraftCount());
    std::vector<std::int32_t> hidden;
    for (std::int32_t place = 0; place < fleet.FSAircraftCount(); ++place) {
        if (!ShowsInTrees(fleet.FSAircrafts[static_cast<std::size_t>(place)].Title)) hidden.push_back(place);
    }
    list.Remove(hidden);
    list.current = list.Count() > 0 ? list.PlaceAt(0) : -1;
    list.SelectCurrentOnly();
}

void KeepCopies(AircraftEditForm& form, const Plan& plan) {
    form.KeptFlights = plan.Flights;
    form.KeptAircrafts = plan.PlanAircrafts;
    form.Changed = form.Saved = false;
}

void PutBackOrForget(AircraftEditForm& form, Plan& plan) {
    if (!form.Saved) {
        plan.Flights = std::move(form.KeptFlights);
        plan.PlanAircrafts = std::move(form.KeptAircrafts);
    }
    form.KeptFlights = FlightList();
    form.KeptAircrafts = {};
}

void Close(Context& context, bool saved) {
    context.forms.frmAircraftEdit.Saved = saved;
    context.forms.frmAircraftEdit.closeRequest = true;
}

}  // namespace

bool EditPlanAircraft(Context& context) {
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    KeepCopies(form, context.session.plan);
    // Each showing starts in the order of the records.
    for (ListView* list : {&form.lvAircrafts, &form.lvFSAircraft}) list->ForgetSorting();
    ShowInstalledAircraft(context);
    ShowPlanAircraft(context);
    form.SetFocus(form.lvAircrafts);
    context.services.windows.ShowModal(form, &context.forms.frmMain);
    // The lists draw from the records and let them go first.
    form.lvAircrafts.Clear();
    form.lvFSAircraft.Clear();
    form.cmAircraft.Clear();
    PutBackOrForget(form, context.session.plan);
    return form.Changed && form.Saved;
}

void OnEditPlanAircraft(Context& context) {
    if (!EditPlanAircraft(context)) return;
    MarkPlanModified(context);
    ShowPlanAnew(context, Views::Reset);
}

void SavePlanAircraft(Context& context) {
    Close(context, true);
}

void CancelPlanAircraft(Context& context) {
    Close(context, false);
}

void OnClosePlanAircraft(Context& context, Event& event) {
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    if (!form.Changed) return Close(context, false);
    const MessageAnswer answer = ShowMessage(context.services.messages, "Do you want to save your changes?",
                                             kButtonsYesNoCancel | kMarkQuestion, &form);
    if (answer == MessageAnswer::Cancel) {
        event.refused = true;
    } else {
        Close(context, answer == MessageAnswer::Yes);
    }
}

bool UserAgrees(Context& context, std::string_view question) {
    return UserAgrees(context.services.messages, question, &context.forms.frmAircraftEdit);
}

void ShowPlanAircraft(Context& context) {
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    const Session& session = context.session;
    form.lvAircrafts.ShowSource(std::make_shared<PlanAircraftRows>(session.plan, session.fleet),
                                session.plan.PlanAircraftCount());
    form.cmAircraft.index = -1;
    FillSubstitutes(context);
}

void FillSubstitutes(Context& context) {
    ComboBox& combo = context.forms.frmAircraftEdit.cmAircraft;
    const std::int32_t index = combo.index;
    combo.Clear();
    std::int32_t place = 0;
    for (const PlanAircraft& aircraft : context.session.plan.PlanAircrafts)
        combo.Add(Concat(aircraft.ACNumber, " - ", aircraft.Title), place++);
    combo.index = index;
}

}  // namespace orlo
