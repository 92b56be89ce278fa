#pragma once

#include <QWidget>
#include <functional>

#include "forms/Form.h"

namespace orlo {

// Lays the widgets of a form out in the order of its controls, with the toolkit's own means: a field beside
// its label, fields in as many columns as the form or frame has, check boxes and buttons that follow one
// another in one row, lists over the whole width with the room that is left, frames with their own contents.
// `widgetOf` gives the widget of a control, null where it has none; `menuBar` may be null.
void LayOut(const Form& form, QWidget& window, QWidget* menuBar,
            const std::function<QWidget*(const Control&)>& widgetOf);

}  // namespace orlo
