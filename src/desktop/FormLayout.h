#pragma once

#include <QWidget>
#include <functional>

#include "forms/Form.h"

namespace orlo {

// Gives the window a toolkit layout as the form's layout says. `widgetOf` gives the widget of any control but
// a menu entry; it is not kept. `menuBar` may be null.
void LayOut(const Form& form, QWidget& window, QWidget* menuBar,
            const std::function<QWidget&(const Control&)>& widgetOf);

}  // namespace orlo
