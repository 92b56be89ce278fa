#include "forms/ResizeGatesForm.h"

#include "core/ParkingClassNames.h"

namespace orlo {

ResizeGatesForm::ResizeGatesForm() : Form("frmResizeGates", "Resize Gates") {
    for (int code = kFirstParkingClass; code < static_cast<int>(kParkingClassNames.size()); ++code) {
        cmType.Add(kParkingClassNames[static_cast<std::size_t>(code)], code);
    }
    defaultButton = &cmdOK;
    cancelButton = &cmdCancel;
    fixedSize = true;
    layout.rows = {WideRow(cmType),  WideRow(txtSize),  WideRow(txtSearch),
                   WideRow(txtICAO), WideRow(ckBackup), RightRow({cmdOK, cmdCancel})};
}

}  // namespace orlo
