#include "shell/FormFacts.h"

#include <array>
#include <utility>

#include "shell/EventTables.h"
#include "shell/PaneFacts.h"

namespace orlo {
namespace {

template <auto Member>
Form& FormOf(Forms& forms) {
    return forms.*Member;
}

template <auto Member>
constexpr FormFacts FactsOf(std::vector<EventTable> (*events)(), std::string_view helpPage) {
    return {FormOf<Member>, sizeof(std::declval<Forms>().*Member), events, helpPage};
}

template <EventTable (*Table)()>
std::vector<EventTable> Only() {
    return {Table()};
}

std::vector<EventTable> NoEvents() {
    return {};
}

std::vector<EventTable> AllMainEvents() {
    std::vector<EventTable> tables = {MainEvents(), MenuEvents()};
    for (const PaneFacts& pane : Panes()) tables.push_back(pane.events);
    return tables;
}

constexpr std::string_view kContents = "index.html";

constexpr std::array kForms = {
    FactsOf<&Forms::frmMain>(AllMainEvents, kContents),
    FactsOf<&Forms::frmProgress>(NoEvents, kContents),
    FactsOf<&Forms::frmSplash>(Only<SplashEvents>, kContents),
    FactsOf<&Forms::frmAbout>(Only<AboutEvents>, kContents),
    FactsOf<&Forms::frmFlightEdit>(Only<FlightEditEvents>, "editor.html"),
    FactsOf<&Forms::frmAircraftEdit>(Only<AircraftEditEvents>, "planaircraft.html"),
    FactsOf<&Forms::frmTTStatistics>(Only<TTStatisticsEvents>, "statistics.html"),
    FactsOf<&Forms::frmFSAircraftEdit>(Only<FSAircraftEditEvents>, "aircraft.html"),
    FactsOf<&Forms::frmTextEdit>(Only<TextEditEvents>, "aircraft.html"),
    FactsOf<&Forms::frmResizeGates>(Only<ResizeGatesEvents>, "gates.html"),
    FactsOf<&Forms::frmDistance>(Only<DistanceEvents>, "airports.html"),
    FactsOf<&Forms::frmAirportSearch>(Only<AirportSearchEvents>, "airports.html"),
    FactsOf<&Forms::frmAirportInfo>(Only<AirportInfoEvents>, "airports.html"),
    FactsOf<&Forms::frmKeptFiles>(Only<KeptFilesEvents>, "kept.html"),
    FactsOf<&Forms::frmShares>(Only<SharesEvents>, "shares.html"),
};

constexpr std::size_t ListedBytes() {
    std::size_t bytes = 0;
    for (const FormFacts& facts : kForms) bytes += facts.size;
    return bytes;
}
static_assert(ListedBytes() == sizeof(Forms), "a form of Forms is missing in the list");

}  // namespace

std::span<const FormFacts> AllForms() {
    return kForms;
}

std::string_view HelpPageOf(Forms& forms, const Form& form) {
    if (&form == &forms.frmMain) return ChosenPane(forms.frmMain).helpPage;
    for (const FormFacts& facts : AllForms()) {
        if (&facts.form(forms) == &form) return facts.helpPage;
    }
    return kContents;
}

}  // namespace orlo
