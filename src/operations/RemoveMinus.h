#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Takes every "-" out of the tail numbers of all flights, removed ones too.
void RemoveMinusFromTailNumbers(Session& session);

// The tool "Remove char '-' from all Tail numbers".
void OnRemoveMinusFromTailNumbers(Context& context);

}  // namespace orlo
