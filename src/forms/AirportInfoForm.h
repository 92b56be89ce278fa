#pragma once

#include <string>

#include "forms/Chart.h"
#include "forms/Form.h"

namespace orlo {

// The report on an airport, beside pictures of its runways and parkings.
struct AirportInfoForm : Form {
    AirportInfoForm();

    TextBox txtInfo{*this, "txtInfo", TextBoxStyle::FixedFont};
    Chart chRunways{*this, "chRunways"};
    Chart chParkings{*this, "chParkings"};
    Button cmdSave{*this, "cmdSave", "&Save"};
    Button cmdSavePicture{*this, "cmdSavePicture", "Save Pic&ture"};
    Button cmdPrint{*this, "cmdPrint", "&Print"};
    Button cmdClose{*this, "cmdClose", "&Close"};

    // What is offered for the files.
    std::string SaveName;
    std::string PictureName;
};

}  // namespace orlo
