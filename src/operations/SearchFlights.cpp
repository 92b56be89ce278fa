#include "operations/SearchFlights.h"

#include <memory>
#include <optional>

#include "core/CodeNumbers.h"
#include "core/Number.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/GetScenery.h"
#include "mainwindow/PlanViews.h"
#include "operations/CheckFlightTimes.h"
#include "operations/DuplicateFlights.h"
#include "operations/SearchFields.h"
#include "operations/SearchRows.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/MatchedAircraft.h"
#include "simulator/PlanPositions.h"

namespace orlo {
namespace {

constexpr int kSearchStages = 4;
constexpr std::string_view kErrorColumn = "ERROR";
constexpr std::string_view kMatchingAircraft = "Matching Aircraft...";
constexpr std::string_view kSearching = "Searching in Flights...";

SearchFields ReadFields(const Context& context, std::string_view departure, std::string_view leg) {
    const MainForm& form = context.forms.frmMain;
    const Session& session = context.session;
    SearchFields fields;
    fields.MatchAll = form.opANDSearch.checked;
    fields.Departure = departure;
    fields.Leg = leg;
    fields.Continent = form.txtExContinent.text;
    fields.Country = form.txtExCountry.text;
    fields.Airline = form.txtExAirline.text;
    fields.IFR = form.ckExportIFR.checked;
    fields.VFR = form.ckExportVFR.checked;
    const auto itemData = [](const ComboBox& combo) {
        return combo.index < 0 ? -1 : combo.entries[static_cast<std::size_t>(combo.index)].itemData;
    };
    const std::int32_t aircraft = itemData(form.cmExportAircraft);
    if (form.cmExportAircraft.index != 0 && aircraft >= 0 && aircraft < session.plan.PlanAircraftCount()) {
        fields.ACNumber = session.plan.PlanAircrafts[static_cast<std::size_t>(aircraft)].ACNumber;
    }
    fields.Class = itemData(form.cmExClass);
    return fields;
}

// Finds flights with a leg whose level doesn't suit. A level that is no number never suits; a leg of unknown
// length or course counts as right.
class LevelSearch {
  public:
    explicit LevelSearch(const Session& session)
        : session_(session), positions_(session.plan), matched_(session.plan, session.fleet) {}

    bool HasWrongLevel(const FlightView& flight) {
        const FSAircraft* aircraft = matched_.FindNoCase(flight.ACNumber);
        if (aircraft == nullptr || flight.LegCount == 0) return false;
        const LevelLimits limits{aircraft->MinFL, aircraft->MaxFL};
        PlanPositions::End from = Find(flight.StartAirport());
        for (const LegView& leg : flight) {
            const PlanPositions::End to = Find(leg.Destination);
            if (IsWrong(flight, leg, positions_.Measure(from, to), limits)) return true;
            from = to;
        }
        return false;
    }

  private:
    PlanPositions::End Find(std::string_view code) {
        return {code, places_.Get(code, [this](std::string_view text) { return positions_.Place(text); })};
    }

    bool IsWrong(const FlightView& flight, const LegView& leg, const RouteMeasure& route,
                 LevelLimits limits) const {
        if (route.Distance == -1 || route.Course == -1) return false;
        const auto level = ParseWholeNumber(leg.FlightLevel);
        return !level || !CheckFlightLevel(session_.rules.FlightLevelRules, flight.FlightType, route.Distance,
                                           route.Course, limits, *level)
                              .Right;
    }

    const Session& session_;
    PlanPositions positions_;
    CodeMemo places_;
    MatchedAircraft matched_;
};

// The leg codes that are missing in the plan's airports, joined; nothing where none is.
std::optional<std::string> UnknownAirports(const Session& session, const FlightView& flight) {
    std::optional<std::string> codes;
    for (const LegView& leg : flight) {
        if (session.plan.PlanAirportIndex.Contains(leg.Destination)) continue;
        if (codes) {
            codes->append(" | ").append(leg.Destination);
        } else {
            codes = leg.Destination;
        }
    }
    return codes;
}

// Walks the flights that are not removed and takes those that match.
template <typename Matches>
void CollectResults(Session& session, Matches matches) {
    for (std::int32_t place = 0; place < session.plan.FlightCount(); ++place) {
        if (session.plan.Flights.Removed(place) || !matches(place, session.plan.Flights.At(place))) continue;
        session.search.SearchResultIndex.push_back(place);
    }
    session.search.SearchResults = session.plan.Flights.Selection(session.search.SearchResultIndex);
    session.search.SearchResultCount = session.search.SearchResults.Count();
}

void FillList(Context& context, const MatchedAircraft& matched, bool withErrors) {
    MainForm& form = context.forms.frmMain;
    const Session& session = context.session;
    ListView& list = form.lvExPreview;
    list.SwitchSorting(false);
    list.Clear();
    if (withErrors) {
        list.AddColumn(kErrorColumn, "Errors");
    } else {
        list.RemoveColumn(kErrorColumn);
    }
    const auto rows = std::make_shared<SearchRows>(
        session.search.SearchResults, session.search.SearchResultText, matched, form.cmExZone.Text());
    list.ShowSource(rows, rows->Count());
    list.SwitchSorting(true);
}

// False where the scenery is needed and there is none.
bool SearchByFields(Context& context, BusyForm& busy, std::string_view departure, std::string_view leg,
                    const MatchedAircraft& matched) {
    const SearchFields fields = ReadFields(context, departure, leg);
    if (fields.AskForScenery() && !GetScenery(context, busy, 1)) return false;
    if (!fields.Airline.empty()) busy.Stage(kMatchingAircraft, 1);
    const FieldSearch search(fields, context.session, matched);
    busy.Stage(kSearching, 2);
    CollectResults(context.session,
                   [&](std::int32_t, const FlightView& flight) { return search.Matches(flight); });
    return true;
}

void SearchWrongLevels(Session& session, BusyForm& busy) {
    busy.Stage(kMatchingAircraft, 1);
    LevelSearch levels(session);
    busy.Stage(kSearching, 2);
    CollectResults(session,
                   [&](std::int32_t, const FlightView& flight) { return levels.HasWrongLevel(flight); });
}

void SearchDuplicates(Session& session, BusyForm& busy) {
    busy.Stage("Preparing Flights...", 1);
    const std::vector<std::int32_t> first = FirstOfEqualFlights(session.plan.Flights);
    busy.Stage(kSearching, 2);
    CollectResults(session, [&](std::int32_t place, const FlightView&) {
        return first[static_cast<std::size_t>(place)] != place;
    });
}

void SearchWrongTimes(Session& session) {
    CollectResults(session, [&](std::int32_t, const FlightView& flight) {
        FlightTimesCheck check =
            CheckFlightTimes(flight, session.switches.TATime, session.switches.MaxTATime);
        if (!check.Right) session.search.SearchResultText.push_back(std::move(check.Text));
        return !check.Right;
    });
}

void SearchUnknownAirports(Session& session) {
    CollectResults(session, [&](std::int32_t, const FlightView& flight) {
        std::optional<std::string> codes = UnknownAirports(session, flight);
        if (codes) session.search.SearchResultText.push_back(std::move(*codes));
        return codes.has_value();
    });
}

// Fills the search state; false where the search can't be done.
bool Search(Context& context, BusyForm& busy, std::string_view departure, std::string_view leg,
            SearchMode mode, const MatchedAircraft& matched) {
    Session& session = context.session;
    switch (mode) {
        case SearchMode::Fields:
            return SearchByFields(context, busy, departure, leg, matched);
        case SearchMode::AircraftNotFound:
            busy.Stage(kSearching, 2);
            CollectResults(session, [&](std::int32_t, const FlightView& flight) {
                return matched.Find(flight.ACNumber) == nullptr;
            });
            break;
        case SearchMode::WrongFlightLevel:
            SearchWrongLevels(session, busy);
            break;
        case SearchMode::WrongTime:
            busy.Stage(kSearching, 2);
            SearchWrongTimes(session);
            break;
        case SearchMode::DuplicateFlights:
            SearchDuplicates(session, busy);
            break;
        case SearchMode::UnknownAirports:
            busy.Stage(kSearching, 2);
            SearchUnknownAirports(session);
            break;
    }
    return true;
}

}  // namespace

void SearchFlights(Context& context, std::string_view departure, std::string_view leg, SearchMode mode) {
    BusyForm busy(context, context.forms.frmMain, kSearchStages);
    context.session.search = {};
    const MatchedAircraft matched(context.session.plan, context.session.fleet);
    if (!Search(context, busy, departure, leg, mode, matched)) return busy.StayBusy();

    busy.Stage("Filling View...", 3);
    MainForm& form = context.forms.frmMain;
    FillList(context, matched, mode == SearchMode::WrongTime || mode == SearchMode::UnknownAirports);
    ShowResultCount(form);
    form.lvExPreview.SelectCurrentOnly();
    form.lvExPreview.ensureVisibleRequest = true;
}

}  // namespace orlo
