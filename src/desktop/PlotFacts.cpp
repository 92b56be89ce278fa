#include "desktop/PlotFacts.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orlo {
namespace {

constexpr std::size_t kMostBesides = 3;      // bars of a place that can still be told apart beside each other
constexpr std::size_t kLongestUpright = 10;  // bytes of a name below its bars
constexpr std::size_t kMostUpright = 120;    // and of all names

constexpr double kLargest = 1e100;  // so that no sum of bars overflows

bool NamesAreLong(const std::vector<std::string>& names) {
    std::size_t longest = 0;
    std::size_t all = 0;
    for (const std::string& name : names) {
        longest = std::max(longest, name.size());
        all += name.size();
    }
    return longest > kLongestUpright || all > kMostUpright;
}

void FindEnds(const ChartPlot& plot, PlotFacts& facts) {
    if (plot.places == ChartPlaces::Named) {
        facts.last = static_cast<double>(plot.names.size());
    } else {
        facts.first = plot.first;
        facts.last = plot.last;
        if (!(facts.last > facts.first) && !plot.at.empty()) {
            facts.first = plot.at.front();
            facts.last = plot.at.back();
        }
    }
    if (!(facts.last > facts.first) || !std::isfinite(facts.last - facts.first)) facts.last = facts.first + 1;
}

// The greatest value of each series, and whether all are whole.
void WalkValues(const ChartPlot& plot, PlotFacts& facts) {
    const std::size_t count = plot.PlaceCount();
    for (const ChartSeries& series : plot.series) {
        std::size_t peak = 0;
        for (std::size_t place = 0; place < count; ++place) {
            const double value = DrawnValue(series, place);
            if (value > DrawnValue(series, peak)) peak = place;
            facts.whole = facts.whole && value == std::floor(value);
        }
        facts.peaks.push_back(peak);
        if (count > 0) facts.greatest = std::max(facts.greatest, DrawnValue(series, peak));
    }
}

// No line of a picture holds a line break or tab, and its file may hold no other control character.
void BlankControls(std::string& text) {
    for (char& byte : text) {
        if (static_cast<unsigned char>(byte) < ' ') byte = ' ';
    }
}

void BlankControls(ChartPlot& plot) {
    for (std::string* text : {&plot.title, &plot.placesTitle, &plot.valuesTitle}) BlankControls(*text);
    for (std::string& name : plot.names) BlankControls(name);
    for (ChartSeries& series : plot.series) BlankControls(series.name);
    for (ChartLevel& level : plot.levels) BlankControls(level.name);
}

void BlankControls(ChartContent& content) {
    for (std::string* text : {&content.title, &content.note, &content.lengthUnit}) BlankControls(*text);
    for (ChartPlot& plot : content.plots) BlankControls(plot);
    for (ChartRunway& runway : content.runways) {
        BlankControls(runway.surface);
        for (RunwayEnd& end : runway.ends) BlankControls(end.number);
    }
}

}  // namespace

double DrawnValue(const ChartSeries& series, std::size_t place) {
    const double value = place < series.values.size() ? series.values[place] : 0;
    return std::isfinite(value) && value > 0 ? std::min(value, kLargest) : 0;
}

PlotFacts FactsOf(const ChartPlot& plot, bool alone) {
    PlotFacts facts;
    for (std::size_t i = 0; i < plot.series.size(); ++i)
        (plot.series[i].kind == SeriesKind::Bars ? facts.bars : facts.steps).push_back(i);
    FindEnds(plot, facts);
    WalkValues(plot, facts);
    facts.stacked = facts.bars.size() > 1 && (plot.stacked || facts.bars.size() > kMostBesides);
    for (std::size_t place = 0; facts.stacked && place < plot.PlaceCount(); ++place)
        facts.greatest = std::max(facts.greatest, StackedValue(plot, facts, facts.bars.back(), place));
    for (const ChartLevel& level : plot.levels) {
        if (level.value <= kLargest) facts.greatest = std::max(facts.greatest, level.value);
    }
    facts.lying =
        alone && plot.places == ChartPlaces::Named && facts.steps.empty() && NamesAreLong(plot.names);
    const auto longest =
        std::max_element(plot.names.begin(), plot.names.end(),
                         [](const std::string& a, const std::string& b) { return a.size() < b.size(); });
    facts.longestName = static_cast<std::size_t>(longest - plot.names.begin());
    return facts;
}

ChartData::ChartData(ChartContent contentOf) : content(std::move(contentOf)) {
    BlankControls(content);
    for (const ChartPlot& plot : content.plots) facts.push_back(FactsOf(plot, content.plots.size() == 1));
}

double StartOf(const ChartPlot& plot, std::size_t place) {
    return plot.places == ChartPlaces::Named ? static_cast<double>(place) : plot.at[place];
}

double EndOf(const ChartPlot& plot, const PlotFacts& facts, std::size_t place) {
    return place + 1 < plot.PlaceCount() ? StartOf(plot, place + 1) : facts.last;
}

double StackedValue(const ChartPlot& plot, const PlotFacts& facts, std::size_t series, std::size_t place) {
    double sum = 0;
    for (const std::size_t bar : facts.bars) {
        if (bar > series) break;
        sum += DrawnValue(plot.series[bar], place);
    }
    return sum;
}

}  // namespace orlo
