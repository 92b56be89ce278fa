#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"

namespace orlo {

// What the places along a plot are.
enum class ChartPlaces {
    Named,   // each has a name of its own
    Time,    // seconds since midnight
    Number,  // such as the steps of a walk
};

enum class SeriesKind {
    Bars,
    Steps,  // a line on which each value holds up to the next place
};

struct ChartSeries {
    SeriesKind kind = SeriesKind::Bars;
    std::string name;
    std::vector<double> values;  // by place
};

// A level line across the whole plot.
struct ChartLevel {
    std::string name;
    double value = 0;
};

// One pair of axes. All its series have the same places, and values of 0 and more.
struct ChartPlot {
    std::string title;
    std::string placesTitle;  // of the axis of the places
    std::string valuesTitle;  // of the axis of the values
    ChartPlaces places = ChartPlaces::Named;
    std::vector<std::string> names;  // of ChartPlaces::Named alone
    std::vector<double> at;          // of the other two: ascending, not strictly
    double first = 0;                // and what part of the axis is shown
    double last = 0;
    std::vector<ChartSeries> series;
    std::vector<ChartLevel> levels;
    bool stacked = false;  // the bars of a place stand on one another, as those of many series always do
    int decimals = -1;     // of shown values; -1: none of whole numbers, one of others

    std::size_t PlaceCount() const { return places == ChartPlaces::Named ? names.size() : at.size(); }
    // As it is shown: a name, "HH:MM:SS" or a number.
    std::string PlaceText(std::size_t place) const;
};

struct RunwayEnd {
    std::string number;  // with what is behind it, such as "07L"
    bool closed = false;
};

// A runway as seen from above.
struct ChartRunway {
    double heading = 0;       // of the first end, in degrees from true north
    std::int32_t length = 0;  // in one unit of the maker's choice, the same for all
    std::int32_t width = 0;   // the same; 0 where it isn't known
    std::string surface;
    RunwayEnd ends[2];  // as seen in the direction of the heading: the near and the far one
};

// Plots one above the other, or runways around one centre. One without both says in `note` why.
struct ChartContent {
    std::string title;
    std::string note;  // a line below
    std::vector<ChartPlot> plots;
    std::vector<ChartRunway> runways;
    std::string lengthUnit;  // of the runways

    // A heading line, then each plot as a table: a line of titles and one a place, fields separated by TAB;
    // levels are lines of their own. The same for runways, and last the note. Each line ends with `lineEnd`.
    std::string Table(std::string_view lineEnd) const;
};

// A chart that the front end draws.
struct Chart : Control {
    Chart(Container in, std::string_view nameOf)
        : Control(ControlKind::Chart, in.form, in.parent, nameOf, "") {}

    const ChartContent& Content() const { return content_; }
    std::int64_t Revision() const { return revision_; }  // counts changes of the content
    void Show(ChartContent content);

  private:
    ChartContent content_;
    std::int64_t revision_ = 0;
};

// The tables of several, with an empty line between two. Lines end with CR LF.
std::string ChartTables(std::span<const Chart* const> charts);

}  // namespace orlo
