#pragma once

#include <cstdint>

#include "mainwindow/Context.h"

namespace orlo {

// The commands of the tab Move. They move the traffic of the aircraft that are checked in tvMoveAircrafts
// from cmSource to cmDest.

void MoveAll(Context& context);
// Asks for the percentage unless an action is executed.
void MovePercentage(Context& context);
// Moves anew, all or the percentage of the action that was loaded or done last.
void ExecuteAction(Context& context);

// Asks for a file and keeps the selection, with this percentage, in it. False on cancel. Where the file can't
// be written, the status bar says so, and the result and the closing message are the same.
bool SaveMoverAction(Context& context, std::int32_t percent);

// Asks for a file and restores its selection; no flight changes. What the plan or the tree lacks is left out.
// False, with nothing changed, on cancel and for a file that is no action.
bool LoadMoverAction(Context& context);

// The buttons that save and load.
void OnMoveSave(Context& context);
void OnMoveLoad(Context& context);

}  // namespace orlo
