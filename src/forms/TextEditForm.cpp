#include "forms/TextEditForm.h"

namespace orlo {

TextEditForm::TextEditForm() : Form("frmTextEdit", "Edit Text") {
    txtText.accessibleName = "Text";
    defaultButton = &cmdOK;
    cancelButton = &cmdCancel;
    layout.rows = {FillingRow(txtText), RightRow({cmdOK, cmdCancel})};
}

}  // namespace orlo
