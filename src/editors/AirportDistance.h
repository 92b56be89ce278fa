#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Opens frmDistance; reads the scenery first where it isn't read yet. While a plan is open its airports can
// be chosen, but for those that the scenery lacks; else all of the scenery. Without any the lists are empty.
void ShowAirportDistance(Context& context);

// The commands of the window. The distance of the two chosen airports goes behind those in txtResult; nothing
// happens where none can be chosen.
void AddAirportDistance(Context& context);
void CloseAirportDistance(Context& context);

}  // namespace orlo
