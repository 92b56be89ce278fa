#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// The menu entry: scans the simulator's aircraft anew and opens frmFSAircraftEdit on them. Afterwards the
// trees of an open plan are filled anew, and its views are reset where an aircraft differs from before.
void ShowFSAircraftEditor(Context& context);

// Writes what was changed: the aircraft's files, and ORLO_AC.CFG where a class moved, each backed up once
// where the user wants backups. False where a file could not be written; the user has been told, the status
// bar names it, and what was not written stays changed.
bool SaveFSAircraft(Context& context);
// Brings back the aircraft and classes as their files have them.
void UndoFSAircraft(Context& context);
// Also the close box. Asks where changes are not saved.
void CloseFSAircraftEditor(Context& context);

}  // namespace orlo
