#include "operations/EditFlights.h"

#include <algorithm>
#include <memory>

#include "core/Application.h"
#include "editors/FlightEditor.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanChange.h"
#include "mainwindow/PlanViews.h"
#include "operations/SearchRows.h"
#include "simulator/MatchedAircraft.h"

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
    if (!session.plan.PlanAircrafts.empty()) flight.ACNumber = session.plan.PlanAircrafts.front().ACNumber;
    flight.TailNumber = "N700MS";
    flight.Percent = "50%";
    flight.Period = "24Hr";
    flight.FlightType = "IFR";
    const std::string airport =
        session.plan.PlanAirports.empty() ? "" : session.plan.PlanAirports.front().ICAO;
    flight.Legs = {NewLeg("00:00:00", airport), NewLeg("01:00:00", airport)};
    return flight;
}

// Appends it behind the results, in place of one that was given up before.
std::int32_t AppendNewResult(Session& session) {
    const std::int32_t place = session.search.SearchResultCount;
    session.search.SearchResults.Truncate(place);
    session.search.SearchResults.Append(NewFlight(session));
    session.search.SearchResultIndex.resize(static_cast<std::size_t>(place));
    session.search.SearchResultIndex.push_back(0);
    ++session.search.SearchResultCount;
    return place;
}

// The rows that the list shows, always SearchRows; made empty where it shows none.
SearchRows& RowsOf(Context& context) {
    ListView& list = context.forms.frmMain.lvExPreview;
    if (list.Source() == nullptr) {
        const auto rows =
            std::make_shared<SearchRows>(FlightList(), std::vector<std::string>(),
                                         MatchedAircraft(context.session.plan, context.session.fleet),
                                         context.forms.frmMain.cmExZone.Text());
        list.ShowSource(rows, 0);
    }
    return static_cast<SearchRows&>(*list.Source());
}

void ShowResult(Context& context, std::int32_t place) {
    RowsOf(context).SetFlight(place, context.session.search.SearchResults.Unpack(place),
                              MatchedAircraft(context.session.plan, context.session.fleet));
}

void ShowNewResult(Context& context, std::int32_t place) {
    MainForm& form = context.forms.frmMain;
    form.lvExPreview.SelectAll(false);
    ShowResult(context, place);
    form.lvExPreview.AddSourceRow();
    EnableExportPane(context);
    ShowResultCount(form);
}

void MarkRemoved(Session& session, std::int32_t result) {
    session.search.SearchResults.SetRemoved(result, true);
    session.plan.Flights.SetRemoved(session.search.SearchResultIndex[static_cast<std::size_t>(result)], true);
}

}  // namespace

void EditFlight(Context& context) {
    Session& session = context.session;
    ListView& list = context.forms.frmMain.lvExPreview;
    const std::int32_t place = list.current;
    if (place < 0 || place >= session.search.SearchResultCount) return;
    TakeFirstUndoSnapshot(context);
    // Edited is the flight as it is now; a cancel leaves what the list shows.
    const Flight shown = session.search.SearchResults.Unpack(place);
    session.search.SearchResults.Replace(
        place,
        session.plan.Flights.Unpack(session.search.SearchResultIndex[static_cast<std::size_t>(place)]));
    if (EditFlight(context, place, true, 0).empty()) {
        session.search.SearchResults.Replace(place, shown);
        return;
    }
    session.plan.Flights.Replace(session.search.SearchResultIndex[static_cast<std::size_t>(place)],
                                 session.search.SearchResults.Unpack(place));
    ShowResult(context, place);
    list.SourceChanged();
    ResetTimetableView(context);
    MarkPlanModified(context);
}

void RefreshSearchResult(Context& context, std::int32_t flightPlace) {
    Session& session = context.session;
    const auto end = session.search.SearchResultIndex.begin() + session.search.SearchResultCount;
    const auto found = std::lower_bound(session.search.SearchResultIndex.begin(), end, flightPlace);
    if (found == end || *found != flightPlace) return;
    const auto place = static_cast<std::int32_t>(found - session.search.SearchResultIndex.begin());
    session.search.SearchResults.Replace(place, session.plan.Flights.Unpack(flightPlace));
    ShowResult(context, place);
    context.forms.frmMain.lvExPreview.SourceChanged();
}

void AddFlight(Context& context) {
    Session& session = context.session;
    std::int32_t place = 0;
    {
        const BusyForm busy(context, context.forms.frmMain);
        TakeFirstUndoSnapshot(context);
        place = AppendNewResult(session);
    }
    if (EditFlight(context, place, true, 0).empty()) {
        --session.search.SearchResultCount;
        return;
    }
    session.search.SearchResultIndex.back() = session.plan.FlightCount();
    session.plan.Flights.Append(session.search.SearchResults.Unpack(place));
    ShowNewResult(context, place);
    ResetTimetableView(context);
    MarkPlanModified(context);
}

void DeleteFlights(Context& context) {
    Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    if (!UserAgrees(context.services.messages,
                    "Are you sure to remove the selected flights from the Flightplan?", &form))
        return;
    TakeFirstUndoSnapshot(context);
    const std::vector<std::int32_t> places = form.lvExPreview.SelectedPlaces();
    for (const std::int32_t place : places) {
        if (place < session.search.SearchResultCount) MarkRemoved(session, place);
    }
    {
        const FrozenForm frozen(form);
        form.lvExPreview.Remove(places);
    }
    if (form.lvExPreview.current >= 0) form.lvExPreview.Select(form.lvExPreview.current, true);
    EnableExportPane(context);
    if (form.lvExPreview.Count() > 0) {
        ShowResultCount(form);
    } else {
        form.lblExPreview.caption = "Previe&w";
    }
    ResetTimetableView(context);
    MarkPlanModified(context);
}

}  // namespace orlo
