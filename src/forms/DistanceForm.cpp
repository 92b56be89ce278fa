#include "forms/DistanceForm.h"

namespace orlo {

DistanceForm::DistanceForm() : Form("frmDistance", "Airport Distance") {
    cmSource.wide = cmDest.wide = true;
    txtResult.readOnly = true;
    defaultButton = &cmdDistance;
    cancelButton = &cmdClose;
    layout.rows = {
        FieldRow({cmSource}),  FieldRow({cmDest}),   RightRow({cmdDistance}),
        FillingRow(txtResult), RightRow({cmdClose}),
    };
}

}  // namespace orlo
