#pragma once

#include <cstdint>

#include "mainwindow/Context.h"

namespace orlo {

// Opens frmAirportInfo on the report and the pictures of one of the scenery's airports, by its place among
// them; over the search, which it comes from.
void ShowAirportInfo(Context& context, std::int32_t index);

// The commands of the window, on what it shows. Saving the text says nothing where it succeeds.
void SaveAirportInfo(Context& context);
void SaveAirportPicture(Context& context);
void PrintAirportInfo(Context& context);
void CloseAirportInfo(Context& context);

}  // namespace orlo
