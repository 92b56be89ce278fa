#include "forms/TTStatisticsForm.h"

namespace orlo {

TTStatisticsForm::TTStatisticsForm() : Form("frmTTStatistics", "Airport Timetable Statistics") {
    txtInfo.readOnly = true;
    txtInfo.accessibleName = "Report";
    defaultButton = &cmdClose;
    cancelButton = &cmdClose;
    chStatistics.accessibleName = "Chart";
    layout.rows = {PaneRow({{{FillingRow(txtInfo)}}, {{FillingRow(chStatistics)}}}),
                   RightRow({cmdPrint, cmdSave, cmdSavePicture, cmdClose})};
}

}  // namespace orlo
