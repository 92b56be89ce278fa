#pragma once

#include <cstdint>
#include <string>

#include "mainwindow/Context.h"

namespace orlo {

// Opens frmFlightEdit, modal, on a copy of a flight of session.search.SearchResults (`fromSearch`) or
// session.plan.Flights, with the row of a leg selected (the first one where there is no such leg). On
// acceptance the changed flight replaces the old one in its list, and the result is the aircraft's title, or
// its number where it isn't installed. On cancel, and for an invalid index, the result is empty, and nothing
// but FEditZone and the three switches of the checks may have changed.
std::string EditFlight(Context& context, std::int32_t flightIndex, bool fromSearch, std::int32_t legIndex);

// Procedures of the dialog's buttons.
void CancelFlightEdit(Context& context);
// Brings back the flight as it was at entry.
void UndoFlightEdit(Context& context);

// Takes the switches of the checks from their check boxes.
void StoreFlightEditSwitches(Context& context);

}  // namespace orlo
