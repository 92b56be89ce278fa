#pragma once

#include <cstdint>
#include <string>

#include "forms/Control.h"

namespace orlo {

// What a row has besides its texts.
struct RowFacts {
    std::string tag;
    std::string toolTip;
    Colour colour = Colour::WindowText;
};

// Gives the texts of a list that keeps no rows of its own, each time one is looked at.
class RowSource {
  public:
    virtual ~RowSource() = default;
    // Appends to `out` the text displayed for a row, counted from 0, in a column of the list.
    virtual void AppendText(std::int32_t row, std::int32_t column, std::string& out) const = 0;
    virtual RowFacts Facts(std::int32_t row) const { return {std::to_string(row), {}, Colour::WindowText}; }
};

}  // namespace orlo
