#pragma once

#include "forms/Chart.h"
#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// Planned and achieved shares of the airlines after a shuffle.
struct SharesForm : Form {
    SharesForm();

    ListView lvSets{*this, "lvSets"};   // one row a set, in the order of the shuffle's log until it is sorted
    Chart chShares{*this, "chShares"};  // of the current row
    Button cmdSavePicture{*this, "cmdSavePicture", "Save Pic&ture"};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

}  // namespace orlo
