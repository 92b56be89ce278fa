#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Behind cmdOK: checks the working flight leg by leg, each finding a warning that the user may pass. Either
// the dialog stays open, with the leg in question selected, or it closes with a result.
void AcceptFlight(Context& context);

}  // namespace orlo
