#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// Shuffles the plan: gives its flights aircraft anew, with the options of the tab.
void OnShuffle(Context& context);

// Sets the start number to the next free one (NextStartNumber). Nothing where the plan has no aircraft.
void OnCalcStartNumber(Context& context);

// Takes a whole number from 1 on as the start number. Refuses any other text with a message that says why,
// and leaves the start number as it was.
void OnLeaveStartNumber(Context& context, Event& event);

}  // namespace orlo
