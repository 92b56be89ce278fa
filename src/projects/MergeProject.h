#pragma once

#include "mainwindow/BusyForm.h"
#include "mainwindow/Context.h"

namespace orlo {

// Combines the plans of the project into FlightPlans.txt and Aircraft.txt beside Airports.txt: with
// `mergeOnly` in the project's folder, else in the temporary folder, where the compiler then runs and all of
// it is taken away again. An aircraft title that several plans share is kept once; a number that is taken is
// given anew. True where the merge, or the merge and the compile, went through; otherwise the user was told
// why not. `busy` is the frame around it, with a stage for each entry and one more.
bool MergeProject(Context& context, BusyForm& busy, bool mergeOnly);

// The buttons.
void OnProjectMerge(Context& context);
void OnProjectCompile(Context& context);

}  // namespace orlo
