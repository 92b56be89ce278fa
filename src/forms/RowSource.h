#pragma once

#include <cstdint>
#include <string>

namespace orlo {

// Gives the texts of a list that keeps no rows of its own, each time one is looked at.
class RowSource {
  public:
    virtual ~RowSource() = default;
    // Appends to `out` the text displayed for a row, counted from 0, in a column of the list.
    virtual void AppendText(std::int32_t row, std::int32_t column, std::string& out) const = 0;
};

}  // namespace orlo
