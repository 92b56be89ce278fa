#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// cmdOK: checks the working flight leg by leg; the user may pass each warning. The dialog either stays open,
// with the leg in question selected, or closes with a result.
void AcceptFlight(Context& context);

}  // namespace orlo
