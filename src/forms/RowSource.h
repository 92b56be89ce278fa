#pragma once

#include <cstdint>
#include <string>

namespace orlo {

// Where a list that keeps no rows of its own gets their texts, each time one is looked at.
class RowSource {
  public:
    virtual ~RowSource() = default;
    // Appends the text displayed for a row, counted from 0, in a column of the list; what stands in `out`
    // stays.
    virtual void AppendText(std::int32_t row, std::int32_t column, std::string& out) const = 0;
};

}  // namespace orlo
