#include "forms/MainForm.h"

#include "core/Application.h"
#include "forms/EmptyHints.h"

namespace orlo {

MainTabs::MainTabs(Form& form) : tabMain{form, "tabMain"} {
    tabMain.pages = {{"SHUFFLE", "Shuffle"},
                     {"MOVE", "Move"},
                     {"EXPORT", "Export/Search"},
                     {"TIMETABLE", "Timetable"},
                     {"PROJECT", "Project"}};
    tabMain.selectedKey = "SHUFFLE";
    tabMain.accessibleName = "Views";
}

MainForm::MainForm()
    : Form("frmMain", kApplicationTitle),
      MainMenus(static_cast<Form&>(*this)),
      MainTabs(static_cast<Form&>(*this)),
      ShufflePane(static_cast<Form&>(*this)),
      MovePane(static_cast<Form&>(*this)),
      ExportPane(static_cast<Form&>(*this)),
      TimetablePane(static_cast<Form&>(*this)),
      ProjectPane(static_cast<Form&>(*this)) {
    defaultButton = &cmdShuffle;
    takesFiles = true;
    SetEmptyHints(*this);
}

}  // namespace orlo
