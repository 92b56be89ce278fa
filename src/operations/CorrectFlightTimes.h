#pragma once

#include <cstdint>
#include <string_view>

#include "core/FlightTimes.h"
#include "mainwindow/Context.h"

namespace orlo {

// Moves legs so that no turn-around is negative, below `minimum` minutes or above `maximum` hours
// (Switches::TATime and MaxTATime), with a minute or two to spare. The first leg stays, leg times stay, and a
// leg whose times can't be read stays. Gives the period that the flight gets: the shortest one that the round
// fits into, after tightening all turn-arounds where none does, and "24Hr" where still none does; for a
// weekly flight, whose period stays, nothing.
std::string_view CorrectTimes(FlightTimes& times, std::int32_t minimum, std::int32_t maximum);

// Does so with all flights of the plan, removed ones too, under the limits of the switches. Only the periods
// and the times of moved legs are written anew.
void CorrectFlightTimes(Plan& plan, const Switches& switches);

// The tool "Correct Flight Times".
void OnCorrectFlightTimes(Context& context);

}  // namespace orlo
