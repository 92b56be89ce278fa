#pragma once

#include <string>

#include "forms/Form.h"

namespace orlo {

// The report on an airport.
struct AirportInfoForm : Form {
    AirportInfoForm();

    TextBox txtInfo{*this, "txtInfo", TextBoxStyle::FixedFont};
    Button cmdSave{*this, "cmdSave", "&Save"};
    Button cmdPrint{*this, "cmdPrint", "&Print"};
    Button cmdClose{*this, "cmdClose", "&Close"};

    std::string SaveName;  // that is offered for the file
};

}  // namespace orlo
