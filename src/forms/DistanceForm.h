#pragma once

#include "forms/Form.h"

namespace orlo {

// Distances between airports, as a running list.
struct DistanceForm : Form {
    DistanceForm();

    Label lblSource{*this, "lblSource", "De&parture Airport"};
    ComboBox cmSource{*this, "cmSource"};  // item data: place in the scenery's airports
    Label lblDest{*this, "lblDest", "&Arrival Airport"};
    ComboBox cmDest{*this, "cmDest"};  // the same entries
    Button cmdDistance{*this, "cmdDistance", "&Distance"};
    Label lblResult{*this, "lblResult", "&Result"};
    TextBox txtResult{*this, "txtResult", TextBoxStyle::MultiLine};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

}  // namespace orlo
