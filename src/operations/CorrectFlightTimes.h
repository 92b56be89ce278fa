#pragma once

#include <cstdint>
#include <string_view>

#include "core/FlightTimes.h"
#include "mainwindow/Context.h"

namespace orlo {

// Moves legs so that no turn-around is negative, below `minimum` minutes or above `maximum` hours
// (Switches::TATime and MaxTATime), with a minute or two to spare. The first leg, the duration of each leg,
// and a leg whose times can't be read stay. Gives the new period of a daily flight: the shortest one that the
// round fits into; where none does, that of the round with all turn-arounds tightened, and "24Hr" where still
// none does. Empty for a weekly flight, whose period stays.
std::string_view CorrectTimes(FlightTimes& times, std::int32_t minimum, std::int32_t maximum);

// CorrectTimes for all flights of the plan, removed ones too, with the limits of the switches. Only the
// periods and the times of moved legs are written anew.
void CorrectFlightTimes(Plan& plan, const Switches& switches);

// The tool "Correct Flight Times".
void OnCorrectFlightTimes(Context& context);

}  // namespace orlo
