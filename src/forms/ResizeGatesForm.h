#pragma once

#include "forms/Form.h"

namespace orlo {

// Gives all parkings of a type another radius.
struct ResizeGatesForm : Form {
    ResizeGatesForm();

    Label lblType{*this, "lblType", "Parking &Type"};
    ComboBox cmType{*this, "cmType"};  // item data: the class as scenery files store it
    Label lblSize{*this, "lblSize", "New &Size (m)"};
    TextBox txtSize{*this, "txtSize"};
    Label lblSearch{*this, "lblSearch", "&Name or place contains"};
    TextBox txtSearch{*this, "txtSearch"};
    Label lblICAO{*this, "lblICAO", "&ICAO contains"};
    TextBox txtICAO{*this, "txtICAO"};
    CheckBox ckBackup{*this, "ckBackup", "Keep a &backup of each file"};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

}  // namespace orlo
