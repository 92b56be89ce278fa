#pragma once

#include <cstdint>

#include "mainwindow/Context.h"

namespace orlo {

// Opens frmAirportInfo on the report of one of the scenery's airports, by its place among them; over the
// search, which it comes from.
void ShowAirportInfo(Context& context, std::int32_t index);

// The commands of the window, on the text that it shows. A save says nothing where it succeeds.
void SaveAirportInfo(Context& context);
void PrintAirportInfo(Context& context);
void CloseAirportInfo(Context& context);

}  // namespace orlo
