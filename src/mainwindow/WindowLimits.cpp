#include "mainwindow/WindowLimits.h"

#include <algorithm>

namespace orlo {

void WindowLimitTable::AddWindowLimits(Form& form, WindowLimits limits) {
    const bool known = std::find(windows_.begin(), windows_.end(), &form) != windows_.end();
    if (!known && windows_.size() == kMostWindows) return;
    if (!known) windows_.push_back(&form);
    form.limits = limits;
}

void WindowLimitTable::RemoveWindowLimits(Form& form) {
    std::erase(windows_, &form);
    form.limits.reset();
}

}  // namespace orlo
