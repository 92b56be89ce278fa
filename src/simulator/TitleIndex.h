#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/KeyedIndex.h"

namespace orlo {

// The places of the installed aircraft, by title without regard to case. The records lend their titles and
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
