#pragma once

#include <string>

#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// The pane of the tab Project: the plans of the open project.
struct ProjectPane {
    explicit ProjectPane(Form& form);

    Picture picProject;
    ListView lvProject{picProject, "lvProject"};
    Picture picProjectDummy{picProject, "picProjectDummy"};  // the ground behind the frame
    Frame frProject{picProject, "frProject", "Edit Project Entry"};
    Label lblProjectDescription{frProject, "lblProjectDescription", "D&escription"};
    TextBox txtProjectDescription{frProject, "txtProjectDescription"};
    Label lblProjectFile{frProject, "lblProjectFile", "Flight&plan"};
    TextBox txtProjectFile{frProject, "txtProjectFile"};
    Button cmdProjectFile{frProject, "cmdProjectFile", "Chan&ge..."};
    Label lblProjectAC{frProject, "lblProjectAC", "Ai&rcraft file"};
    TextBox txtProjectAC{frProject, "txtProjectAC"};
    Button cmdProjectAC{frProject, "cmdProjectAC", "Cha&nge..."};
    Button cmdProjectAdd{picProject, "cmdProjectAdd", "&Add"};
    Button cmdProjectDelete{picProject, "cmdProjectDelete", "&Delete"};
    Button cmdProjectMerge{picProject, "cmdProjectMerge", "&Merge"};
    Button cmdProjectCompile{picProject, "cmdProjectCompile", "&Compile"};

    // What the pane remembers besides its controls.
    std::string CurrentProjectKey;  // of the entry shown in frProject; empty for none
};

}  // namespace orlo
