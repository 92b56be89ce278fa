#include "forms/FSAircraftEditForm.h"

#include "core/AircraftClassNames.h"
#include "forms/PaneSetUp.h"

namespace orlo {

FSAircraftEditForm::FSAircraftEditForm() : Form("frmFSAircraftEdit", "Aircraft Editor") {
    SetColumns(lvAircrafts, {"Title", "ATC Type", "ATC Model", "Airline", "Class", "Errors"});
    lvAircrafts.accessibleName = "Aircraft";
    for (std::int32_t code = kClassNotUsed; code <= kClassHugeJet; ++code) {
        cmClass.Add(AircraftClassName(code, ""), code);
    }
    for (Control* control :
         std::initializer_list<Control*>{&lblATCModel, &lblATCType, &lblSpeed, &cmdEditPerformance}) {
        control->colour = Colour::Red;
    }
    cancelButton = &cmdCancel;
    layout.rows = {
        FillingRow(lvAircrafts),
        WideRow(Holding(frAircraft, {{WideRow(txtTitle), FieldRow({cmAirline, cmClass, txtRadius}),
                                      FieldRow({txtManufacturer, txtType, txtVariation}),
                                      FieldRow({txtATCID, txtFlightNumber, ckHeavy}),
                                      FieldRow({txtModelFile, txtTexture, txtSim}),
                                      FieldRow({cmATCModel, cmATCType, txtSpeed}),
                                      LeftRow({ckVisualDamage, cmdEditDescription, cmdEditPerformance})},
                                     3})),
        RightRow({cmdSave, cmdUndo, cmdACTypeDat, cmdCancel}),
    };
}

}  // namespace orlo
