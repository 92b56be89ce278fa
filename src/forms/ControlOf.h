#pragma once

#include "forms/Form.h"

namespace orlo {

// Names a control of a form at compile time, for tables: `ControlOf<MainForm, &MainForm::cmdShuffle>` is the
// function that gives it. The form must be one of that type.
template <typename FormType, auto Member>
Control& ControlOf(Form& form) {
    return static_cast<FormType&>(form).*Member;
}
using ControlGetter = Control& (*)(Form& form);

}  // namespace orlo
