#include "editors/AirportSearch.h"

#include <functional>
#include <memory>
#include <utility>

#include "core/Number.h"
#include "core/PlaceIndex.h"
#include "core/Text.h"
#include "editors/AirportInfo.h"
#include "mainwindow/GetScenery.h"
#include "simulator/Feet.h"

namespace orlo {
namespace {

bool Matches(const AirportRecord& airport, std::string_view text) {
    return ContainsNoCase(airport.ICAO, text) || ContainsNoCase(airport.Name, text) ||
           ContainsNoCase(airport.City, text) || ContainsNoCase(airport.Country, text) ||
           ContainsNoCase(airport.Region, text) || ContainsNoCase(airport.State, text);
}

// The plan's airports by their code as it is spelled, which the plan's own index doesn't tell.
class SpelledCodes {
  public:
    explicit SpelledCodes(const std::vector<PlanAirport>& airports) : airports_(airports) {
        index_.Reserve(airports.size());
        for (std::size_t i = 0; i < airports.size(); ++i) {
            const std::string_view code = airports[i].ICAO;
            index_.FindOrAdd(Hash(code), static_cast<std::int32_t>(i),
                             [&](std::int32_t at) { return Has(at, code); });
        }
    }
    // The first place; -1 when missing.
    std::int32_t Find(std::string_view code) const {
        return index_.Find(Hash(code), [&](std::int32_t at) { return Has(at, code); });
    }

  private:
    static std::uint64_t Hash(std::string_view code) { return std::hash<std::string_view>()(code); }
    bool Has(std::int32_t at, std::string_view code) const {
        return airports_[static_cast<std::size_t>(at)].ICAO == code;
    }

    const std::vector<PlanAirport>& airports_;
    PlaceIndex index_;
};

// Places and altitude are those of the plan's list where that has the airport.
class FoundAirports : public RowSource {
  public:
    FoundAirports(const Session& session, std::vector<FoundAirport> found)
        : airports_(session.scenery.Airports),
          planAirports_(session.plan.PlanAirports),
          found_(std::move(found)) {}

    std::int32_t Count() const { return static_cast<std::int32_t>(found_.size()); }
    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override {
        const FoundAirport& found = At(row);
        const AirportRecord& airport = airports_[static_cast<std::size_t>(found.airport)];
        if (column == 0) {
            AppendName(airport, found.planAirport >= 0, out);
        } else if (found.planAirport >= 0) {
            AppendPlace(planAirports_[static_cast<std::size_t>(found.planAirport)], column, out);
        } else {
            AppendPlace(airport, column, out);
        }
    }
    RowFacts Facts(std::int32_t row) const override {
        return {std::to_string(At(row).airport), {}, Colour::WindowText};
    }

  private:
    const FoundAirport& At(std::int32_t row) const { return found_[static_cast<std::size_t>(row)]; }
    static void AppendName(const AirportRecord& airport, bool inPlan, std::string& out) {
        out.append(Concat(airport.Name, " (", airport.ICAO, ") - ", airport.City, "/", airport.Country));
        if (!inPlan) out.append(" [not in AIRPORTS.TXT]");
    }
    static void AppendPlace(const PlanAirport& airport, std::int32_t column, std::string& out) {
        if (column < 3) return AppendPosition(airport, column, out);
        out.append(airport.Altitude).append("ft");
    }
    static void AppendPlace(const AirportRecord& airport, std::int32_t column, std::string& out) {
        if (column < 3) return AppendPosition(airport, column, out);
        out.append(Concat(WholeFeet(airport.Elevation), "ft"));
    }
    template <typename Airport>
    static void AppendPosition(const Airport& airport, std::int32_t column, std::string& out) {
        out.append(column == 1 ? airport.Latitude : airport.Longitude);
    }

    const std::vector<AirportRecord>& airports_;
    const std::vector<PlanAirport>& planAirports_;
    std::vector<FoundAirport> found_;
};

void StartAnew(AirportSearchForm& form, const Session& session) {
    form.txtSearch.text.clear();
    form.ckAPOnly.checked = session.plan.PlanAirportCount() != 0;
    form.lblResult.caption = kSearchResult;
    form.lvSearch.ForgetSorting();
    form.lvSearch.emptyHint = session.scenery.Airports.empty() ? kNothingToSearch : kHowToSearch;
    form.SetFocus(form.txtSearch);
}

}  // namespace

std::vector<FoundAirport> FindAirports(const std::vector<AirportRecord>& airports,
                                       const std::vector<PlanAirport>& planAirports, std::string_view text,
                                       bool inPlanOnly) {
    const SpelledCodes codes(planAirports);
    std::vector<FoundAirport> found;
    for (std::size_t place = 0; place < airports.size(); ++place) {
        if (!Matches(airports[place], text)) continue;
        const std::int32_t planAirport = codes.Find(airports[place].ICAO);
        if (planAirport < 0 && inPlanOnly) continue;
        found.push_back({static_cast<std::int32_t>(place), planAirport});
    }
    return found;
}

void ShowAirportSearch(Context& context) {
    AirportSearchForm& form = context.forms.frmAirportSearch;
    {
        BusyForm busy(context, context.forms.frmMain, 2);
        GetScenery(context, busy, 0);
        busy.Stage("Refreshing...", 1);
        StartAnew(form, context.session);
    }
    context.services.windows.ShowModal(form, &context.forms.frmMain);
    form.lvSearch.Clear();  // it draws from the airports
}

void SearchAirports(Context& context) {
    AirportSearchForm& form = context.forms.frmAirportSearch;
    const Session& session = context.session;
    const auto rows = std::make_shared<FoundAirports>(
        session, FindAirports(session.scenery.Airports, session.plan.PlanAirports, form.txtSearch.text,
                              form.ckAPOnly.checked));
    form.lvSearch.ShowSource(rows, rows->Count());
    form.lvSearch.ensureVisibleRequest = true;
    form.lblResult.caption = Concat(kSearchResult, " (", rows->Count(), " airports found)");
}

void ShowFoundAirport(Context& context, Event& event) {
    const std::string tag = context.forms.frmAirportSearch.lvSearch.Tag(event.value);
    if (const auto place = ParseWholeNumber(tag)) ShowAirportInfo(context, *place);
}

void CloseAirportSearch(Context& context) {
    context.forms.frmAirportSearch.closeRequest = true;
}

}  // namespace orlo
