#include "editors/AirportDistance.h"

#include "core/KeyedIndex.h"
#include "core/Text.h"
#include "mainwindow/GetScenery.h"
#include "simulator/Navigation.h"

namespace orlo {
namespace {

std::vector<std::int32_t> AllPlaces(const std::vector<AirportRecord>& airports) {
    std::vector<std::int32_t> places(airports.size());
    for (std::size_t i = 0; i < places.size(); ++i) places[i] = static_cast<std::int32_t>(i);
    return places;
}

// In the order of the plan's list.
std::vector<std::int32_t> PlacesOf(const Plan& plan, const std::vector<AirportRecord>& airports) {
    KeyedIndex<std::int32_t> index;
    index.Reserve(airports.size());
    for (std::size_t i = 0; i < airports.size(); ++i)
        index.Add(airports[i].ICAO, static_cast<std::int32_t>(i));
    std::vector<std::int32_t> places;
    for (const PlanAirport& airport : plan.PlanAirports) {
        if (const std::int32_t* place = index.Find(airport.ICAO)) places.push_back(*place);
    }
    return places;
}

void FillLists(DistanceForm& form, const Session& session) {
    const std::vector<AirportRecord>& airports = session.scenery.Airports;
    form.cmSource.Clear();
    for (const std::int32_t place :
         session.plan.PlanLoaded ? PlacesOf(session.plan, airports) : AllPlaces(airports)) {
        const AirportRecord& airport = airports[static_cast<std::size_t>(place)];
        form.cmSource.Add(
            Concat(airport.ICAO, " - ", airport.Name, " (", airport.City, "/", airport.Country, ")"), place);
    }
    form.cmDest.Clear();
    form.cmDest.entries = form.cmSource.entries;
    for (ComboBox* list : {&form.cmSource, &form.cmDest}) list->SelectFirst();
}

std::string_view ChosenCode(const ComboBox& list, const std::vector<AirportRecord>& airports) {
    const ComboEntry& entry = list.entries[static_cast<std::size_t>(list.index)];
    return airports[static_cast<std::size_t>(entry.itemData)].ICAO;
}

}  // namespace

void ShowAirportDistance(Context& context) {
    DistanceForm& form = context.forms.frmDistance;
    {
        BusyForm busy(context, context.forms.frmMain, 2);
        GetScenery(context, busy, 0);
        busy.Stage("Refreshing...", 1);
        FillLists(form, context.session);
    }
    form.txtResult.text.clear();
    form.SetFocus(form.cmSource);
    context.services.windows.ShowModal(form, &context.forms.frmMain);
    for (ComboBox* list : {&form.cmSource, &form.cmDest}) list->Clear();
}

void AddAirportDistance(Context& context) {
    DistanceForm& form = context.forms.frmDistance;
    const Plan& plan = context.session.plan;
    const std::vector<AirportRecord>& airports = context.session.scenery.Airports;
    if (form.cmSource.index < 0 || form.cmDest.index < 0) return;
    const std::string_view from = ChosenCode(form.cmSource, airports);
    const std::string_view to = ChosenCode(form.cmDest, airports);
    const std::int32_t distance =
        plan.PlanLoaded ? GetDistance(plan, from, to) : GetSceneryDistance(airports, from, to);
    form.txtResult.text.append(Concat(from, " - > ", to, " = ", distance, "nm\r\n"));
    form.txtResult.goToEndRequest = true;
}

void CloseAirportDistance(Context& context) {
    context.forms.frmDistance.closeRequest = true;
}

}  // namespace orlo
