#include "forms/AirportInfoForm.h"

namespace orlo {

AirportInfoForm::AirportInfoForm() : Form("frmAirportInfo", "Airport Information") {
    txtInfo.readOnly = true;
    txtInfo.accessibleName = "Report";
    defaultButton = &cmdClose;
    cancelButton = &cmdClose;
    layout.rows = {FillingRow(txtInfo), RightRow({cmdSave, cmdPrint, cmdClose})};
}

}  // namespace orlo
