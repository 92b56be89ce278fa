#pragma once

#include "mainwindow/BusyForm.h"

namespace orlo {

// Shows the stage of that name and reads the scenery, unless it is read already. False when there are no
// airports afterwards.
bool GetScenery(Context& context, BusyForm& busy, int value);

}  // namespace orlo
