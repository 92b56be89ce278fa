#pragma once

#include <string_view>

#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// What lvSearch says before the first search, and where there are no airports to search.
inline constexpr std::string_view kHowToSearch =
    "Search for a part of a code, name or place. A double click on an airport opens its report.";
inline constexpr std::string_view kNothingToSearch = "No airports: the simulator's scenery was not found.";
// In front of the number of airports found.
inline constexpr std::string_view kSearchResult = "&Result";

// Finds airports by any of their names. The tag of a row in lvSearch is a place in the scenery's airports.
struct AirportSearchForm : Form {
    AirportSearchForm();

    Label lblSearch{*this, "lblSearch", "&Look for"};
    TextBox txtSearch{*this, "txtSearch"};
    CheckBox ckAPOnly{*this, "ckAPOnly", "&only Airports in 'AIRPORTS.TXT' "};
    Button cmdSearch{*this, "cmdSearch", "&Search"};
    Label lblResult{*this, "lblResult", kSearchResult};
    ListView lvSearch{*this, "lvSearch"};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

}  // namespace orlo
