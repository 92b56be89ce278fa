#include "forms/KeptFilesForm.h"

#include "core/Text.h"

namespace orlo {

KeptFilesForm::KeptFilesForm() : Form("frmKeptFiles", "Kept Files") {
    for (const std::string_view column : {"Kept", "File", "Before", "Folder"})
        lvKept.AddColumn(UpperText(column), column);
    lvKept.accessibleName = "Kept files";
    lvKept.emptyHint = "No file had to be kept so far.";
    defaultButton = &cmdRestore;
    cancelButton = &cmdClose;
    layout.rows = {FillingRow(lvKept), RightRow({cmdRestore, cmdShowFolder, cmdDelete, cmdClose})};
}

}  // namespace orlo
