#include "forms/ExportPane.h"

#include "core/AircraftClassNames.h"
#include "forms/PaneSetUp.h"

namespace orlo {

ExportPane::ExportPane(Form& form) : picExport{form, "picExport"} {
    picExport.visible = false;
    SetColumns(lvExPreview, {"Airline", "Aircraft", "AC#", "Registration", "Departure ICAO", "Legs", "Period",
                             "Depart", "Arrive", "Flight Type", "Flight Level", "Percent"});
    cmExClass.Add("#None#", -1);
    for (std::int32_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        cmExClass.Add(AircraftClassName(code, ""), code);
    }
    cmExClass.SelectFirst();
    SetZones(cmExZone);
    opANDSearch.checked = true;
}

}  // namespace orlo
