#include "forms/AirportSearchForm.h"

#include "core/Text.h"

namespace orlo {

AirportSearchForm::AirportSearchForm() : Form("frmAirportSearch", "Airport Search") {
    for (const std::string_view column : {"Airport", "Latitude", "Longitude", "Elevation"})
        lvSearch.AddColumn(UpperText(column), column);
    lvSearch.emptyHint = kHowToSearch;
    lvSearch.wide = true;
    defaultButton = &cmdSearch;
    cancelButton = &cmdClose;
    layout.rows = {
        WideRow(txtSearch),
        LeftRow({ckAPOnly, cmdSearch}),
        FillingRow(lvSearch),
        RightRow({cmdClose}),
    };
}

}  // namespace orlo
