#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

struct FoundAirport {
    std::int32_t airport = 0;       // place in the scenery's airports
    std::int32_t planAirport = -1;  // place of the first of exactly its code in PlanAirports; -1 for none
};

// The airports of which code, name, city, country, region or state has the text in it, case aside, in their
// order; all of them for an empty text. With `inPlanOnly` only those that the plan's list has.
std::vector<FoundAirport> FindAirports(const std::vector<AirportRecord>& airports,
                                       const std::vector<PlanAirport>& planAirports, std::string_view text,
                                       bool inPlanOnly);

// Opens frmAirportSearch; reads the scenery first where it isn't read yet. Without it nothing is found.
void ShowAirportSearch(Context& context);

// The commands of the window.
void SearchAirports(Context& context);
void ShowFoundAirport(Context& context, Event& event);  // a double click on a row
void CloseAirportSearch(Context& context);

}  // namespace orlo
