#pragma once

#include <string>

#include "forms/Form.h"

namespace orlo {

// A window for a text of several lines. Its caption says what the text is.
struct TextEditForm : Form {
    TextEditForm();

    TextBox txtText{*this, "txtText", TextBoxStyle::MultiLine};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

    std::string Result;  // of one showing, in the stored form
};

}  // namespace orlo
