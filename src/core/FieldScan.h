#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace orlo {

// Where the fields of a line of a flightplan stand. One scan is used for all lines of a file.
class FieldScan {
  public:
    // Finds the commas in front of the comment, which starts at the first ";" or "//". A line is at most 4 GB
    // long.
    void Scan(std::string_view line);

    std::size_t Length() const { return length_; }    // of the line in front of its comment
    bool HasBlanks() const { return hasBlanks_; }     // in that length, or close behind it
    std::size_t Count() const { return count_ + 1; }  // fields
    // Positions of a field, index from 0 to Count() - 1.
    std::size_t Start(std::size_t index) const { return index == 0 ? 0 : commas_[index - 1] + 1u; }
    std::size_t End(std::size_t index) const { return index < count_ ? commas_[index] : length_; }
    std::size_t FieldLength(std::size_t index) const { return End(index) - Start(index); }

  private:
    std::vector<std::uint32_t> commas_;  // the first count_ of them are those of the line
    std::size_t count_ = 0;
    std::size_t length_ = 0;
    bool hasBlanks_ = false;
};

}  // namespace orlo
