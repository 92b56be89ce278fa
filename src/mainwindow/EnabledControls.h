#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Which controls of the main window are enabled: a procedure for the menus and one for each pane. They only
// read the state: plan and project with their marks, the lists, a held snapshot, a shuffle's result, a loaded
// action. Whoever changes one of these runs the procedure.
void EnableMenus(Context& context);
void EnableShufflePane(Context& context);
void EnableMovePane(Context& context);
void EnableExportPane(Context& context);
void EnableTimetablePane(Context& context);
void EnableProjectPane(Context& context);

// All of them: at the start, and where a plan comes or goes.
void EnableAll(Context& context);

}  // namespace orlo
