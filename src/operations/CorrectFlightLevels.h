#pragma once

#include <vector>

#include "mainwindow/Context.h"

namespace orlo {

// Gives every leg of every flight, removed ones too, a level drawn from those that suit its route and
// aircraft, in the order second leg to last, then first. A flight whose aircraft isn't installed keeps its
// levels.
void CorrectFlightLevels(Plan& plan, const Fleet& fleet, const std::vector<FlightLevelRule>& rules,
                         RandomSource& random);

// The tool "Correct Flight Levels".
void OnCorrectFlightLevels(Context& context);

}  // namespace orlo
