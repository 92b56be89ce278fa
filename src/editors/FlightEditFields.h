#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// What the fields of the flight editor do to its working flight. A change stores what is valid at once, so
// that the flight holds what was typed when Enter accepts it; what isn't valid is not stored, and keeps the
// focus where the field would be left.

void OnFlightAircraft(Context& context);
void OnFlightRegistration(Context& context);
void OnFlightPercent(Context& context);
void OnLeaveFlightPercent(Context& context, Event& event);
// Asks before a weekly flight loses its days.
void OnFlightPeriod(Context& context);
void OnFlightType(Context& context);
// Changes FEditZone at once; the flight stays.
void OnFlightZone(Context& context);

// Fields of the selected leg.
void OnLegDeparture(Context& context);
void OnLegArrival(Context& context);
// Of txtTime and cmDay; the arrival follows unless it is fixed.
void OnLegTime(Context& context);
void OnLeaveLegTime(Context& context, Event& event);
void OnLegETA(Context& context);
void OnLeaveLegETA(Context& context, Event& event);
void OnLegFixedETA(Context& context);
void OnLegLevel(Context& context);
void OnLeaveLegLevel(Context& context, Event& event);
void OnLegNumber(Context& context);
void OnLegUseNumber(Context& context);

}  // namespace orlo
