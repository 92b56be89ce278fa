#include "forms/TTStatisticsForm.h"

namespace orlo {

TTStatisticsForm::TTStatisticsForm() : Form("frmTTStatistics", "Airport Timetable Statistics") {
    txtInfo.readOnly = true;
    txtInfo.accessibleName = "Report";
    defaultButton = &cmdClose;
    cancelButton = &cmdClose;
    layout.rows = {FillingRow(txtInfo), RightRow({cmdPrint, cmdSave, cmdClose})};
}

}  // namespace orlo
