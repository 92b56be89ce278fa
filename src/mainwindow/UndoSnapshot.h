#pragma once

#include <vector>

#include "core/FlightList.h"
#include "core/PlanRecords.h"

namespace orlo {

struct Context;

// The traffic as it was before an operation: one step back, no history. mnuToolsUndo is enabled while a
// snapshot is held, and only then.
struct UndoSnapshot {
    bool Held = false;
    FlightList Flights;
    std::vector<PlanAircraft> PlanAircrafts;
};

// Copies flights and aircraft and enables mnuToolsUndo. Does nothing while the switch Undo is off.
void TakeUndoSnapshot(Context& context);

// The same unless a snapshot is held already: a run of single edits is undone as one step.
void TakeFirstUndoSnapshot(Context& context);

// Empties the snapshot and disables mnuToolsUndo.
void DiscardUndoSnapshot(Context& context);

// Puts the snapshot back, discards it, rebuilds trees and views, and says so. PlanModified stays as it is.
void RestoreUndoSnapshot(Context& context);

}  // namespace orlo
