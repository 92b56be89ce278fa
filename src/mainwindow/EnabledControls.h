#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// What of the main window is enabled, a procedure each for the menus and every pane. Each only reads: plan
// and project with their marks, the lists, and what was done before where that counts (a held snapshot, a
// loaded action). Whoever changes one of these runs the procedure.
void EnableMenus(Context& context);
void EnableShufflePane(Context& context);
void EnableMovePane(Context& context);
void EnableExportPane(Context& context);
void EnableTimetablePane(Context& context);
void EnableProjectPane(Context& context);

// All of them: at the start, and where a plan comes or goes.
void EnableAll(Context& context);

}  // namespace orlo
