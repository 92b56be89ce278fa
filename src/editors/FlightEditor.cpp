#include "editors/FlightEditor.h"

#include "core/Text.h"
#include "editors/FlightEditLegs.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/SettingsTable.h"
#include "simulator/MatchedAircraft.h"

namespace orlo {
namespace {

void FillAirports(ComboBox& combo, const Session& session) {
    combo.Clear();
    for (const PlanAirport& airport : session.plan.PlanAirports) combo.Add(airport.ICAO);
}

void FillAircraft(FlightEditForm& form, const Session& session) {
    const MatchedAircraft matched(session.plan, session.fleet);
    form.cmAircraft.Clear();
    form.AircraftIndex.Clear();
    for (std::int32_t place = 0; place < session.plan.PlanAircraftCount(); ++place) {
        const PlanAircraft& aircraft = session.plan.PlanAircrafts[static_cast<std::size_t>(place)];
        form.cmAircraft.Add(Concat(aircraft.Title, " (", aircraft.ACNumber, ")"), place);
        form.AircraftIndex.Add(aircraft.ACNumber, matched.Places()[static_cast<std::size_t>(place)]);
    }
}

void SelectAircraft(FlightEditForm& form, const Session& session) {
    form.cmAircraft.index = -1;
    for (std::int32_t place = 0; place < session.plan.PlanAircraftCount(); ++place) {
        if (session.plan.PlanAircrafts[static_cast<std::size_t>(place)].ACNumber !=
            form.WorkingFlight.ACNumber)
            continue;
        form.cmAircraft.index = place;
        return;
    }
}

void SelectPeriod(FlightEditForm& form) {
    form.cmPeriod.index = -1;
    for (std::size_t entry = 0; entry < form.cmPeriod.entries.size(); ++entry) {
        if (EqualNoCase(form.cmPeriod.entries[entry].text, form.WorkingFlight.Period))
            form.cmPeriod.index = static_cast<std::int32_t>(entry);
    }
}

// The fields and rows of the working flight.
void ShowFlight(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const Flight& flight = form.WorkingFlight;
    SelectAircraft(form, context.session);
    form.txtReg.text = flight.TailNumber;
    form.txtPercent.text = RemoveAll(flight.Percent, '%');
    SelectPeriod(form);
    (EqualNoCase(flight.FlightType, "IFR") ? form.opIFR : form.opVFR).Check();
    FillLegRows(context);
}

void FillDialog(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const Session& session = context.session;
    ForEachSetting<EditorSwitch>([&](const SettingRow&, const EditorSwitch& mirror) {
        (form.*mirror.box).checked = session.switches.*mirror.value;
    });
    form.cmZone.index = -1;
    form.cmZone.SelectText(session.switches.FEditZone);
    FillAirports(form.cmDeparture, session);
    FillAirports(form.cmArrival, session);
    FillAircraft(form, session);
    ShowFlight(context);
}

}  // namespace

std::string EditFlight(Context& context, std::int32_t flightIndex, bool fromSearch, std::int32_t legIndex) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    FlightList& flights = fromSearch ? context.session.search.SearchResults : context.session.plan.Flights;
    if (flightIndex < 0 || flightIndex >= flights.Count()) return {};
    {
        const BusyForm busy(context, context.forms.frmMain);
        form.Result.clear();
        form.WorkingFlight = flights.Unpack(flightIndex);
        form.UndoFlight = form.WorkingFlight;
        FillDialog(context);
        SelectLeg(context, legIndex);
        ComputeArrivals(context);
        form.SetFocus(form.cmAircraft);
        context.services.windows.ShowModal(form, &context.forms.frmMain);
    }
    if (!form.Result.empty()) flights.Replace(flightIndex, form.WorkingFlight);
    return form.Result;
}

void StoreFlightEditSwitches(Context& context) {
    const FlightEditForm& form = context.forms.frmFlightEdit;
    ForEachSetting<EditorSwitch>([&](const SettingRow&, const EditorSwitch& mirror) {
        context.session.switches.*mirror.value = (form.*mirror.box).checked;
    });
}

void CancelFlightEdit(Context& context) {
    StoreFlightEditSwitches(context);
    context.forms.frmFlightEdit.Result.clear();
    context.forms.frmFlightEdit.closeRequest = true;
}

void UndoFlightEdit(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    form.WorkingFlight = form.UndoFlight;
    ShowFlight(context);
    // Not OnSelectLeg: the arrivals stay as they were, too.
    LoadSelectedLeg(context);
}

}  // namespace orlo
