#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// The menu entries that run the outside tools on a single plan.

// Asks for a plan and compiles it in the temporary folder.
void CompileFlightplan(Context& context);
// The open plan as it stands on the disk, saved first where the user wants that.
void CompileCurrentFlightplan(Context& context);
// Asks for an output and decompiles the traffic in its folder.
void DecompileFlightplan(Context& context);

}  // namespace orlo
