#pragma once

#include <vector>

#include "core/AircraftRecords.h"
#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// The editor of the simulator's aircraft. A row's tag is its aircraft's place in FSAircrafts.
struct FSAircraftEditForm : Form {
    FSAircraftEditForm();

    ListView lvAircrafts{*this, "lvAircrafts"};

    Frame frAircraft{
        *this, "frAircraft",
        "Edit Aircraft (red colored captions mean that their values are used for all variations)"};
    Label lblTitle{frAircraft, "lblTitle", "&Title"};
    TextBox txtTitle{frAircraft, "txtTitle"};
    Label lblAirline{frAircraft, "lblAirline", "A&irline"};
    ComboBox cmAirline{frAircraft, "cmAirline", ComboStyle::Editable};
    Label lblClass{frAircraft, "lblClass", "&Class"};
    ComboBox cmClass{frAircraft, "cmClass"};  // item data: class code
    Label lblRadius{frAircraft, "lblRadius", "&Radius"};
    TextBox txtRadius{frAircraft, "txtRadius"};
    Label lblManufacturer{frAircraft, "lblManufacturer", "&Manufacturer"};
    TextBox txtManufacturer{frAircraft, "txtManufacturer"};
    Label lblType{frAircraft, "lblType", "T&ype"};
    TextBox txtType{frAircraft, "txtType"};
    Label lblVariation{frAircraft, "lblVariation", "&Variation"};
    TextBox txtVariation{frAircraft, "txtVariation"};
    Label lblATCID{frAircraft, "lblATCID", "ATC I&D"};
    TextBox txtATCID{frAircraft, "txtATCID"};
    Label lblFlightNumber{frAircraft, "lblFlightNumber", "Flight Num&ber"};
    TextBox txtFlightNumber{frAircraft, "txtFlightNumber"};
    CheckBox ckHeavy{frAircraft, "ckHeavy", "&Heavy"};
    Label lblModelFile{frAircraft, "lblModelFile", "M&odel"};
    TextBox txtModelFile{frAircraft, "txtModelFile"};
    Label lblTexture{frAircraft, "lblTexture", "Te&xture"};
    TextBox txtTexture{frAircraft, "txtTexture"};
    Label lblSim{frAircraft, "lblSim", "Air Fi&le"};
    TextBox txtSim{frAircraft, "txtSim"};
    Label lblATCModel{frAircraft, "lblATCModel", "ATC Mod&el"};
    ComboBox cmATCModel{frAircraft, "cmATCModel", ComboStyle::Editable};
    Label lblATCType{frAircraft, "lblATCType", "&ATC Type"};
    ComboBox cmATCType{frAircraft, "cmATCType", ComboStyle::Editable};
    Label lblSpeed{frAircraft, "lblSpeed", "Cr&uise Speed"};
    TextBox txtSpeed{frAircraft, "txtSpeed"};
    CheckBox ckVisualDamage{frAircraft, "ckVisualDamage", "Visual Dama&ge"};
    Button cmdEditDescription{frAircraft, "cmdEditDescription", "Edit Descri&ption..."};
    Button cmdEditPerformance{frAircraft, "cmdEditPerformance", "Edit Per&formance..."};

    Button cmdSave{*this, "cmdSave", "&Save"};
    Button cmdUndo{*this, "cmdUndo", "U&ndo"};
    Button cmdACTypeDat{*this, "cmdACTypeDat", "Create 'AircraftTypes.dat'"};
    Button cmdCancel{*this, "cmdCancel", "Close"};

    // What the dialog holds besides its controls, for one showing.
    std::vector<FSAircraft> KeptAircraft;  // as the files have them, place by place in FSAircrafts
    ClassLists KeptClasses;                // as ORLO_AC.CFG has them
};

}  // namespace orlo
