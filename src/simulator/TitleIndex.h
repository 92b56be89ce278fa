#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/KeyedIndex.h"

namespace orlo {

// Where the installed aircraft stand, by title without regard to case. Titles are lent by the records, which
// must outlive the index unchanged. Built once per operation.
class TitleIndex {
  public:
    explicit TitleIndex(const std::vector<FSAircraft>& fsAircrafts);

    // Place of the first aircraft of that title; -1 when none is installed.
    std::int32_t Find(std::string_view title) const;

  private:
    std::unordered_map<std::string_view, std::int32_t, NoCaseHash, NoCaseEqual> places_;
};

}  // namespace orlo
