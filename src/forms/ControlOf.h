#pragma once

#include "forms/Form.h"

namespace orlo {

// Names a control at compile time, for tables: the function `ControlOf<MainForm, &MainForm::cmdShuffle>`
// gives it. `form` must be of that type.
template <typename FormType, auto Member>
Control& ControlOf(Form& form) {
    return static_cast<FormType&>(form).*Member;
}
using ControlGetter = Control& (*)(Form& form);

}  // namespace orlo
