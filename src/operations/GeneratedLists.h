#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Commands that write lists for the traffic compiler. The scenery is read first where it isn't read yet. A
// file that can't be written is named in the status bar; the closing message is the same.

// "New Airports.txt" in the program folder: all airports of the scenery.
void GenerateAirports(Context& context);
// "Flightplan Airports.txt" in the plan's folder: those that the plan uses.
void GeneratePlanAirports(Context& context);

// "New AircraftTypes.dat" in the program folder: each variant whose title is checked in tvShuffleAircraft.
void GenerateCheckedAircraftTypes(Context& context);
// The same with each variant that the trees show, over the window that asks for it.
void GenerateAllAircraftTypes(Context& context, Form& owner);

}  // namespace orlo
