#include "shuffler/SharesWindow.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/Text.h"
#include "mainwindow/ReportWindow.h"
#include "shuffler/ShuffleShares.h"

namespace orlo {
namespace {

std::size_t FlightsOf(const SetOfLevel& set) {
    return static_cast<std::size_t>(set.set->Flights);
}

std::size_t AirlinesOf(const SetOfLevel& set) {
    return set.set->Airlines.size();
}

// A list sorts by texts. With blanks in front, to the width of the greatest one, counts sort by their values.
std::string CountText(std::size_t count, std::size_t greatest) {
    const std::string digits = std::to_string(count);
    return std::string(std::to_string(greatest).size() - digits.size(), ' ') + digits;
}

// Chooses the set that gave the most flights; the first of equal ones.
void FillSets(ListView& list, const std::vector<SetOfLevel>& sets) {
    std::size_t mostFlights = 0;
    std::size_t mostAirlines = 0;
    std::size_t busiest = 0;
    for (std::size_t i = 0; i < sets.size(); ++i) {
        if (FlightsOf(sets[i]) > mostFlights) busiest = i;
        mostFlights = std::max(mostFlights, FlightsOf(sets[i]));
        mostAirlines = std::max(mostAirlines, AirlinesOf(sets[i]));
    }
    list.Clear();
    list.ForgetSorting();
    list.Reserve(static_cast<std::int32_t>(sets.size()));
    ListRow row;
    for (const SetOfLevel& set : sets) {
        // Two sets of the file may have one name.
        row.key = Concat("#", list.Count());
        row.texts = {std::string(set.level), std::string(set.name), CountText(FlightsOf(set), mostFlights),
                     CountText(AirlinesOf(set), mostAirlines)};
        list.Add(row);
    }
    list.current = static_cast<std::int32_t>(busiest);
    list.SelectCurrentOnly();
    list.ensureVisibleRequest = true;
}

ChartPlot PlotOf(const AirlineSet& set) {
    ChartPlot plot;
    plot.title = "Shares of the airlines";
    plot.placesTitle = "Airline";
    plot.valuesTitle = "Percent";
    plot.decimals = 2;  // as the log has them
    plot.series = {{SeriesKind::Bars, "Planned", {}}, {SeriesKind::Bars, "Achieved", {}}};
    for (const AirlineEntry& entry : set.Airlines) {
        plot.names.push_back(entry.Name);
        // A negative number of the rule file stays as it is, and no bar is below 0.
        plot.series[0].values.push_back(std::max(entry.PlannedPercent, 0));
        plot.series[1].values.push_back(AchievedPercent(entry, set));
    }
    return plot;
}

std::string FlightsText(std::int32_t count) {
    return Concat(count, count == 1 ? " flight" : " flights");
}

std::string NoteOf(const AirlineSet& set, std::int32_t noAirlineFlights) {
    std::string note = set.Flights > 0 ? FlightsText(set.Flights) : "No flight";
    note += " got an aircraft from this set.";
    if (set.Airlines.empty()) note += " It names no airlines.";
    if (noAirlineFlights > 0) note += Concat(" No airline: ", FlightsText(noAirlineFlights), " of the plan.");
    return note;
}

ChartContent ContentOf(const SetOfLevel& shown, std::int32_t noAirlineFlights) {
    ChartContent content;
    content.title = Heading(shown);
    content.note = NoteOf(*shown.set, noAirlineFlights);
    if (!shown.set->Airlines.empty()) content.plots = {PlotOf(*shown.set)};
    return content;
}

}  // namespace

void ShowShares(Context& context) {
    SharesForm& form = context.forms.frmShares;
    // Half a run's counts tell nothing.
    if (!context.session.shuffle.HasResult) return;
    FillSets(form.lvSets, SetsByLevel(context.session.shuffle.RunAirlines));
    ShowSharesOfSet(context);
    form.SetFocus(form.lvSets);
    context.services.windows.ShowModal(form, &context.forms.frmMain);
}

void ShowSharesOfSet(Context& context) {
    SharesForm& form = context.forms.frmShares;
    const ShuffleState& shuffle = context.session.shuffle;
    if (form.lvSets.current < 0) return;
    const auto place = static_cast<std::size_t>(form.lvSets.current);
    const SetOfLevel shown = SetsByLevel(shuffle.RunAirlines)[place];
    form.chShares.Show(ContentOf(shown, shuffle.NoAirlineFlights));
    form.cmdSavePicture.enabled = !shown.set->Airlines.empty();
}

void SaveSharesPicture(Context& context) {
    SharesForm& form = context.forms.frmShares;
    SavePicture(context, form, "Shares.png", {&form.chShares});
}

void CloseShares(Context& context) {
    context.forms.frmShares.closeRequest = true;
}

}  // namespace orlo
