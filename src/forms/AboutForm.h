#pragma once

#include "core/Application.h"
#include "core/Text.h"
#include "core/Version.h"
#include "forms/Form.h"

namespace orlo {

struct AboutForm : Form {
    AboutForm() : Form("frmAbout", Concat("About ", kApplicationTitle)) {
        defaultButton = &cmdOK;
        cancelButton = &cmdOK;
        fixedSize = true;
        layout.rows = {TitleRow(lblTitle), WideRow(lblVersion), RightRow({cmdOK, cmdSysInfo})};
    }

    Label lblTitle{*this, "lblTitle", kApplicationTitle};
    Label lblVersion{*this, "lblVersion",
                     Concat("Version ", kVersionMajor, ".", kVersionMinor, ".", kVersionRevision, " SP1")};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdSysInfo{*this, "cmdSysInfo", "&System Info..."};
};

}  // namespace orlo
