#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The main job: new aircraft for all flights.
void OnShuffle(Context& context);

// One more than the highest aircraft number in use becomes the start number; nothing without aircraft.
void OnCalcStartNumber(Context& context);

// Takes a whole number from 1 on as the start number; says what is wrong with any other text and refuses.
void OnLeaveStartNumber(Context& context, Event& event);

}  // namespace orlo
