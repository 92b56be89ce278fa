#pragma once

#include <vector>

#include "forms/Form.h"

namespace orlo {

// The windows whose size is limited, at most 20. A front end reads the limits from the form.
class WindowLimitTable {
  public:
    static constexpr std::size_t kMostWindows = 20;

    // Where the table is full the window is not registered.
    void AddWindowLimits(Form& form, WindowLimits limits);
    void RemoveWindowLimits(Form& form);

  private:
    std::vector<Form*> windows_;
};

inline constexpr WindowLimits kMainWindowLimits{550, 400, 10000, 10000};

}  // namespace orlo
