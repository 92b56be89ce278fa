#pragma once

#include "forms/Form.h"

namespace orlo {

// The report on a timetable.
struct TTStatisticsForm : Form {
    TTStatisticsForm();

    TextBox txtInfo{*this, "txtInfo", TextBoxStyle::FixedFont};
    Button cmdPrint{*this, "cmdPrint", "&Print"};
    Button cmdSave{*this, "cmdSave", "&Save"};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

}  // namespace orlo
