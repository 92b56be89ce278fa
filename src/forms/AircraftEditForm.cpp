#include "forms/AircraftEditForm.h"

#include "core/Text.h"

namespace orlo {

AircraftEditForm::AircraftEditForm() : Form("frmAircraftEdit", "Flightplan Aircraft Editor") {
    for (const std::string_view column : {"Number", "Cruise Speed", "Title"})
        lvAircrafts.AddColumn(UpperText(column), column);
    for (const std::string_view column : {"Title", "ATC Type", "ATC Model", "Airline"})
        lvFSAircraft.AddColumn(UpperText(column), column);
    lvAircrafts.colourMarks = lvFSAircraft.colourMarks = true;
    cmdAddMissing.toolTip = "This will add all aircraft that are currently not in your 'Aircraft.txt'.";
    defaultButton = &cmdSave;
    cancelButton = &cmdCancel;
    layout.rows = {
        PaneRow({{{FillingRow(lvAircrafts), LeftRow({cmdNumber, cmdSpeed, cmdTitle, cmdDelete}),
                   WideRow(WithButton(cmAircraft, cmdSubstitute))}},
                 {{FillingRow(lvFSAircraft), LeftRow({cmdAdd, cmdAddMissing})}}}),
        RightRow({cmdSave, cmdCancel}),
    };
}

}  // namespace orlo
