#pragma once

#include "forms/MainForm.h"

namespace orlo {

// What the empty lists and trees of the main window say before a plan or project was opened: how to begin.
void SetEmptyHints(MainForm& form);
// Takes them from all that show a plan, for good: from now on such a list is empty for another reason.
void ClearPlanHints(MainForm& form);

// Once a project was begun or opened.
void ClearProjectHint(MainForm& form);

}  // namespace orlo
