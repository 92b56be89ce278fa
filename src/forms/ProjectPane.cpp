#include "forms/ProjectPane.h"

#include "forms/PaneSetUp.h"

namespace orlo {

ProjectPane::ProjectPane(Form& form) : picProject{form, "picProject"} {
    picProject.visible = false;
    SetColumns(lvProject, {"Description", "Flightplan", "Aircraft file"});
    txtProjectFile.readOnly = true;
    txtProjectAC.readOnly = true;
    lvProject.accessibleName = "Project entries";
    cmdProjectFile.accessibleName = "Change flightplan";
    cmdProjectAC.accessibleName = "Change aircraft file";
}

}  // namespace orlo
