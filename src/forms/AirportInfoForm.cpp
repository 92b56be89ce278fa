#include "forms/AirportInfoForm.h"

namespace orlo {

AirportInfoForm::AirportInfoForm() : Form("frmAirportInfo", "Airport Information") {
    txtInfo.readOnly = true;
    txtInfo.accessibleName = "Report";
    chRunways.accessibleName = "Runways";
    chParkings.accessibleName = "Parkings";
    defaultButton = &cmdClose;
    cancelButton = &cmdClose;
    layout.rows = {
        PaneRow({{{FillingRow(txtInfo)}, 1, 2}, {{FillingRow(chRunways), FillingRow(chParkings)}}}),
        RightRow({cmdSave, cmdSavePicture, cmdPrint, cmdClose}),
    };
}

}  // namespace orlo
