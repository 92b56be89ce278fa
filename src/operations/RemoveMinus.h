#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Takes every "-" out of the tail numbers of all flights, removed ones too.
void RemoveMinusFromTailNumbers(Plan& plan);

// The tool "Remove char '-' from all Tail numbers".
void OnRemoveMinusFromTailNumbers(Context& context);

}  // namespace orlo
