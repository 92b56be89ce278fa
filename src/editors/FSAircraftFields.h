#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The fields of frmFSAircraftEdit. Each shows a value of the current row's aircraft, and what is typed or
// chosen goes into it at once, without blanks around it and with a blank for each ";", which would end the
// value in the file. Values of the whole file go to all variants of it. Titles, models and the like may be
// empty. A model folder, a texture folder and an air file are taken when their fields are left.

// Shows the edited aircraft in all fields; without one they are empty and disabled.
void ShowAircraftFields(Context& context);

// For any field of text, box of names or check box.
void OnAircraftField(Context& context, Event& event);
// A number above 0 is taken. A radius goes to all aircraft with the same model.
void OnAircraftSpeed(Context& context);
void OnAircraftRadius(Context& context);
// Refuses to leave where no number above 0 stands, unless the field shows what the aircraft has.
void OnLeaveAircraftSpeed(Context& context, Event& event);
void OnLeaveAircraftRadius(Context& context, Event& event);

// The long texts, in a window of their own.
void EditAircraftDescription(Context& context);
void EditAircraftPerformance(Context& context);

}  // namespace orlo
