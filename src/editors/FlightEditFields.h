#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// What the fields of the flight editor do to its working flight. Times, texts and choices are stored as they
// change, where they are valid; level and percent when their field is left. What isn't valid is not stored,
// and keeps the focus where the field would be left.

void OnFlightAircraft(Context& context);
void OnFlightRegistration(Context& context);
void OnLeaveFlightPercent(Context& context, Event& event);
// Asks before a weekly flight loses its days.
void OnFlightPeriod(Context& context);
void OnFlightType(Context& context);
// Changes FEditZone at once; the flight stays.
void OnFlightZone(Context& context);

// Fields of the selected leg.
void OnLegDeparture(Context& context);
void OnLegArrival(Context& context);
// The arrival follows unless it is fixed.
void OnLegTime(Context& context);
// The same; a fixed arrival moves by as many days.
void OnLegDay(Context& context);
void OnLeaveLegTime(Context& context, Event& event);
void OnLegETA(Context& context);
void OnLeaveLegETA(Context& context, Event& event);
void OnLegFixedETA(Context& context);
void OnLeaveLegLevel(Context& context, Event& event);
void OnLegNumber(Context& context);
void OnLegUseNumber(Context& context);

// For an acceptance that leaves no field: what is typed in the field that has the focus is stored as if it
// were left. False where it isn't valid, which has been told then.
bool TakesTypedText(Context& context);

}  // namespace orlo
