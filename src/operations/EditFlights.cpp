#include "operations/EditFlights.h"

#include <memory>

#include "core/Application.h"
#include "editors/FlightEditor.h"
#include "mainwindow/BulkOperation.h"
#include "mainwindow/PlanViews.h"
#include "operations/MatchedAircraft.h"
#include "operations/SearchRows.h"

namespace orlo {
namespace {

Leg NewLeg(std::string_view time, const std::string& destination) {
    Leg leg;
    leg.DepartTime = time;
    leg.ETA = time;
    leg.FlightLevel = "100";
    leg.NumberMode = "F";
    leg.FlightNumber = "0000";
    leg.Destination = destination;
    return leg;
}

Flight NewFlight(const Session& session) {
    Flight flight;
    if (!session.PlanAircrafts.empty()) flight.ACNumber = session.PlanAircrafts.front().ACNumber;
    flight.TailNumber = "N700MS";
    flight.Percent = "50%";
    flight.Period = "24Hr";
    flight.FlightType = "IFR";
    const std::string airport = session.PlanAirports.empty() ? "" : session.PlanAirports.front().ICAO;
    flight.Legs = {NewLeg("00:00:00", airport), NewLeg("01:00:00", airport)};
    return flight;
}

// Behind the results; one that was given up before makes way.
std::int32_t AppendNewResult(Session& session) {
    const std::int32_t place = session.SearchResultCount;
    session.SearchResults.Truncate(place);
    session.SearchResults.Append(NewFlight(session));
    session.SearchResultIndex.resize(static_cast<std::size_t>(place));
    session.SearchResultIndex.push_back(0);
    ++session.SearchResultCount;
    return place;
}

// The rows that the list shows, which are no others than a search's; empty ones where it shows none.
SearchRows& RowsOf(Context& context) {
    ListView& list = context.forms.frmMain.lvExPreview;
    if (list.Source() == nullptr) {
        const auto rows = std::make_shared<SearchRows>(FlightList(), std::vector<std::string>(),
                                                       MatchedAircraft(context.session),
                                                       context.forms.frmMain.cmExZone.Text());
        list.ShowSource(rows, 0);
    }
    return static_cast<SearchRows&>(*list.Source());
}

void ShowResult(Context& context, std::int32_t place) {
    RowsOf(context).SetFlight(place, context.session.SearchResults.Unpack(place),
                              MatchedAircraft(context.session));
}

void ShowNewResult(Context& context, std::int32_t place) {
    MainForm& form = context.forms.frmMain;
    form.lvExPreview.SelectAll(false);
    ShowResult(context, place);
    form.lvExPreview.AddSourceRow();
    EnableResultCommands(form);
    ShowResultCount(form);
}

void MarkRemoved(Session& session, std::int32_t result) {
    session.SearchResults.SetRemoved(result, true);
    session.Flights.SetRemoved(session.SearchResultIndex[static_cast<std::size_t>(result)], true);
}

}  // namespace

void EditFlight(Context& context) {
    Session& session = context.session;
    ListView& list = context.forms.frmMain.lvExPreview;
    const std::int32_t place = list.current;
    if (place < 0 || place >= session.SearchResultCount) return;
    TakeFirstUndoSnapshot(context);
    if (EditFlight(context, place, true, 0).empty()) return;
    session.Flights.Replace(session.SearchResultIndex[static_cast<std::size_t>(place)],
                            session.SearchResults.Unpack(place));
    ShowResult(context, place);
    list.SourceChanged();
    MarkPlanModified(context);
}

void AddFlight(Context& context) {
    Session& session = context.session;
    std::int32_t place = 0;
    {
        const BusyMainWindow busy(context);
        TakeFirstUndoSnapshot(context);
        place = AppendNewResult(session);
    }
    if (EditFlight(context, place, true, 0).empty()) {
        --session.SearchResultCount;
        return;
    }
    session.SearchResultIndex.back() = session.FlightCount();
    session.Flights.Append(session.SearchResults.Unpack(place));
    ShowNewResult(context, place);
    MarkPlanModified(context);
}

void DeleteFlights(Context& context) {
    Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    const MessageAnswer answer = ShowMessage(
        context.services.messages, "Are you sure to remove the selected flights from the Flightplan?",
        kButtonsYesNo | kMarkQuestion, &form);
    if (answer != MessageAnswer::Yes) return;
    TakeFirstUndoSnapshot(context);
    const std::vector<std::int32_t> places = form.lvExPreview.SelectedPlaces();
    for (const std::int32_t place : places) {
        if (place < session.SearchResultCount) MarkRemoved(session, place);
    }
    {
        const FrozenForm frozen(form);
        form.lvExPreview.Remove(places);
    }
    if (form.lvExPreview.current >= 0) form.lvExPreview.Select(form.lvExPreview.current, true);
    EnableResultCommands(form);
    if (form.lvExPreview.Count() > 0) {
        ShowResultCount(form);
    } else {
        form.lblExPreview.caption = "Previe&w";
    }
    MarkPlanModified(context);
}

}  // namespace orlo
