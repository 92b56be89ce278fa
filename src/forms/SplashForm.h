#pragma once

#include "core/Application.h"
#include "forms/Form.h"

namespace orlo {

struct SplashForm : Form {
    SplashForm() : Form("frmSplash", kApplicationTitle) {
        picSplash.accessibleName = kApplicationTitle;
        picSplash.emblem = true;
        frameless = true;
        layout.rows = {FillingRow(picSplash)};
    }

    Picture picSplash{*this, "picSplash"};
};

}  // namespace orlo
