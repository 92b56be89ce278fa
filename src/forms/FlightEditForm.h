#pragma once

#include <cstdint>
#include <string>

#include "core/Flight.h"
#include "core/KeyedIndex.h"
#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// The editor of one flight. The place of a row in lvLegs is the place of its leg.
struct FlightEditForm : Form {
    FlightEditForm();

    Label lblAircraft{*this, "lblAircraft", "&Aircraft"};
    ComboBox cmAircraft{*this, "cmAircraft"};  // item data: place in PlanAircrafts
    Label lblReg{*this, "lblReg", "Re&gistration"};
    TextBox txtReg{*this, "txtReg"};
    Label lblPercent{*this, "lblPercent", "Per&cent"};
    TextBox txtPercent{*this, "txtPercent"};
    Label lblPeriod{*this, "lblPeriod", "&Period"};
    ComboBox cmPeriod{*this, "cmPeriod"};  // item data: hours, 0 for a week
    Frame frFlightType{*this, "frFlightType", "Flight Type"};
    OptionButton opIFR{frFlightType, "opIFR", "&IFR"};
    OptionButton opVFR{frFlightType, "opVFR", "&VFR"};
    Label lblZone{*this, "lblZone", "Time &Zone"};
    ComboBox cmZone{*this, "cmZone"};

    ListView lvLegs{*this, "lvLegs"};
    Button cmdAdd{*this, "cmdAdd", "Add &Leg"};
    Button cmdDelete{*this, "cmdDelete", "&Delete Leg"};

    Frame frLeg{*this, "frLeg", "Edit Le&g properties"};
    Label lblDeparture{frLeg, "lblDeparture", "&From"};
    ComboBox cmDeparture{frLeg, "cmDeparture"};
    Label lblArrival{frLeg, "lblArrival", "T&o"};
    ComboBox cmArrival{frLeg, "cmArrival"};
    Label lblDay{frLeg, "lblDay", "Da&y"};
    ComboBox cmDay{frLeg, "cmDay"};
    Label lblTime{frLeg, "lblTime", "&Time"};
    TextBox txtTime{frLeg, "txtTime"};
    Label lblETA{frLeg, "lblETA", "&ETA"};
    TextBox txtETA{frLeg, "txtETA"};
    CheckBox ckFixedETA{frLeg, "ckFixedETA", "Fi&xed ETA"};
    Label lblLevel{frLeg, "lblLevel", "Flig&ht Level"};
    TextBox txtLevel{frLeg, "txtLevel"};
    Label lblNumber{frLeg, "lblNumber", "Flight &Number"};
    TextBox txtNumber{frLeg, "txtNumber"};
    CheckBox ckUseNumber{frLeg, "ckUseNumber", "Use Flight N&umber"};

    CheckBox ckAircraftRange{*this, "ckAircraftRange", "check Aircraft range"};
    CheckBox ckFlightLevel{*this, "ckFlightLevel", "check Flight Levels"};
    CheckBox ckFlightTimes{*this, "ckFlightTimes", "check Flight Times"};

    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
    Button cmdUndo{*this, "cmdUndo", "Undo Change&s"};
    Button cmdPrint{*this, "cmdPrint", "P&rint"};

    // What the dialog holds besides its controls, for one showing.
    Flight WorkingFlight;                    // what the fields change; its times are GMT
    Flight UndoFlight;                       // as it was at entry
    KeyedIndex<std::int32_t> AircraftIndex;  // aircraft number to place in FSAircrafts, -1: not installed
    std::string Result;                      // empty while cancelled
};

}  // namespace orlo
