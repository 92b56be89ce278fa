#pragma once

#include <cstdint>

#include "mainwindow/Context.h"

namespace orlo {

// The legs of the flight editor: the rows of lvLegs, and the fields of the selected one in frLeg.

// The selected leg's place, -1 for none.
std::int32_t SelectedLeg(const FlightEditForm& form);

// Builds all rows anew and selects the first one; loads no field.
void FillLegRows(Context& context);
// Writes the row of a leg anew.
void ShowLegRow(Context& context, std::int32_t leg);
void ShowAllLegRows(Context& context);

// Loads the fields from the selected leg, or clears and disables them.
void LoadSelectedLeg(Context& context);
// For a click on a leg's row: LoadSelectedLeg, and its arrival is computed anew.
void OnSelectLeg(Context& context);
// Makes the leg's row visible, selects and loads it.
void SelectLeg(Context& context, std::int32_t leg);

// The caption of frLeg: distance, course and fitting levels of the selected leg.
void ShowLegCaption(Context& context);

// Computes all arrivals that aren't fixed anew. Without a chosen aircraft all stay.
void ComputeArrivals(Context& context);
// The same for the selected leg alone.
void ComputeSelectedArrival(Context& context);

void AddLeg(Context& context);
void DeleteLeg(Context& context);

}  // namespace orlo
