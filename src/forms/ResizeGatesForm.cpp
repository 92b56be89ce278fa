#include "forms/ResizeGatesForm.h"

#include "forms/PaneSetUp.h"

namespace orlo {

ResizeGatesForm::ResizeGatesForm() : Form("frmResizeGates", "Resize Gates") {
    SetEntries(cmType, {{"Ramp GA Small", 2},
                        {"Ramp GA Medium", 3},
                        {"Ramp GA Large", 4},
                        {"Ramp Cargo", 5},
                        {"Ramp Mil Cargo", 6},
                        {"Ramp Mil Combat", 7},
                        {"Gate Small", 8},
                        {"Gate Medium", 9},
                        {"Gate Heavy", 10},
                        {"Dock GA", 11}});
    defaultButton = &cmdOK;
    cancelButton = &cmdCancel;
    fixedSize = true;
    layout.rows = {WideRow(cmType),  WideRow(txtSize),  WideRow(txtSearch),
                   WideRow(txtICAO), WideRow(ckBackup), RightRow({cmdOK, cmdCancel})};
}

}  // namespace orlo
