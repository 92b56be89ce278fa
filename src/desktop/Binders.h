#pragma once

#include <memory>

#include "desktop/Binder.h"

namespace orlo {

// The binder of a control, with its widget in `parent`; null for a menu entry, which has none.
std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& parent, EventSink& sink);

}  // namespace orlo
