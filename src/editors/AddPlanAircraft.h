#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Adds the selected rows of lvFSAircraft to the plan, each under the next free number; asks for each title
// that the plan has already. The new rows are the selected ones, the last of them current and in view. The
// first title with ",", ";" or "//", which Aircraft.txt can't hold, is named in the status bar.
void AddPlanAircraft(Context& context);
// The same for all rows that the plan lacks, without a question.
void AddMissingAircraft(Context& context);

}  // namespace orlo
