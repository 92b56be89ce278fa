#pragma once

#include <QWidget>
#include <functional>

#include "forms/Form.h"

namespace orlo {

// Lays the widgets of a form out in the order of its controls: a label beside its field or over its list, the
// buttons that follow one another in one row, panes and frames with their own contents. `widgetOf` gives the
// widget of a control, null where it has none; `menuBar` may be null.
void LayOut(const Form& form, QWidget& window, QWidget* menuBar,
            const std::function<QWidget*(const Control&)>& widgetOf);

}  // namespace orlo
