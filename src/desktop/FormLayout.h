#pragma once

#include <QWidget>
#include <functional>

#include "forms/Form.h"

namespace orlo {

// Lays the widgets of a form out as its layout says, with the toolkit's own means. `widgetOf` gives the
// widget of a control, which the layout names once; `menuBar` may be null.
void LayOut(const Form& form, QWidget& window, QWidget* menuBar,
            const std::function<QWidget&(const Control&)>& widgetOf);

}  // namespace orlo
