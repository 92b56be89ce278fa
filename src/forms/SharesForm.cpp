#include "forms/SharesForm.h"

#include "core/Text.h"

namespace orlo {

SharesForm::SharesForm() : Form("frmShares", "Shares of the last Shuffle") {
    for (const std::string_view column : {"Level", "Name", "Flights", "Airlines"})
        lvSets.AddColumn(UpperText(column), column);
    lvSets.accessibleName = "Sets of airlines";
    chShares.accessibleName = "Planned and achieved shares";
    defaultButton = &cmdClose;
    cancelButton = &cmdClose;
    layout.rows = {FillingRow(lvSets), FillingRow(chShares), RightRow({cmdSavePicture, cmdClose})};
}

}  // namespace orlo
