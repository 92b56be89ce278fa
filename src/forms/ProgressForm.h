#pragma once

#include "core/Application.h"
#include "forms/Form.h"

namespace orlo {

// The display of a long operation; the user can't close it.
struct ProgressForm : Form {
    ProgressForm() : Form("frmProgress", kApplicationTitle) {
        lblProgress.plainCaption = true;
        layout.rows = {WideRow(lblProgress), WideRow(pbProgress)};
    }

    Label lblProgress{*this, "lblProgress", ""};
    ProgressBar pbProgress{*this, "pbProgress"};
};

}  // namespace orlo
