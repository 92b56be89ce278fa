#pragma once

#include "forms/Chart.h"
#include "forms/Form.h"

namespace orlo {

// The report on a timetable, as a text and as a picture.
struct TTStatisticsForm : Form {
    TTStatisticsForm();

    TextBox txtInfo{*this, "txtInfo", TextBoxStyle::FixedFont};
    Chart chStatistics{*this, "chStatistics"};
    Button cmdPrint{*this, "cmdPrint", "&Print"};
    Button cmdSave{*this, "cmdSave", "&Save"};
    Button cmdSavePicture{*this, "cmdSavePicture", "Save Pic&ture"};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

}  // namespace orlo
