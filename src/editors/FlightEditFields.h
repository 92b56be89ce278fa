#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// What the fields of the flight editor do to its working flight. Valid times, texts and choices are stored as
// they change; a valid level or percent when its field is left. An invalid one is not stored, and its field
// can't be left.

void OnFlightAircraft(Context& context);
void OnFlightRegistration(Context& context);
void OnLeaveFlightPercent(Context& context, Event& event);
// Asks first where a weekly flight would lose its days.
void OnFlightPeriod(Context& context);
void OnFlightType(Context& context);
// Changes FEditZone at once; the flight stays.
void OnFlightZone(Context& context);

// Fields of the selected leg.
void OnLegDeparture(Context& context);
void OnLegArrival(Context& context);
// The arrival follows unless it is fixed.
void OnLegTime(Context& context);
// Like OnLegTime; but a fixed arrival moves by as many days.
void OnLegDay(Context& context);
void OnLeaveLegTime(Context& context, Event& event);
void OnLegETA(Context& context);
void OnLeaveLegETA(Context& context, Event& event);
void OnLegFixedETA(Context& context);
void OnLeaveLegLevel(Context& context, Event& event);
void OnLegNumber(Context& context);
void OnLegUseNumber(Context& context);

// For Enter, which leaves no field: stores what is typed in the field that has the focus as if it were left.
// False where that isn't valid; the user has been told.
bool TakesTypedText(Context& context);

}  // namespace orlo
