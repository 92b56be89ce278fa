#pragma once

#include <initializer_list>
#include <string_view>

#include "forms/ListView.h"

namespace orlo {

// Columns whose keys are their captions in upper case.
void SetColumns(ListView& list, std::initializer_list<std::string_view> captions);
void SetEntries(ComboBox& combo, std::initializer_list<ComboEntry> entries);
// All time zones, GMT chosen.
void SetZones(ComboBox& combo);

}  // namespace orlo
