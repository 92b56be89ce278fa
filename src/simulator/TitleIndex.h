#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/KeyedIndex.h"
#include "core/Session.h"

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

// For each plan aircraft in order, the place in FSAircrafts of the first aircraft of its title; -1 without
// one.
std::vector<std::int32_t> InstalledPlaces(const Session& session);

// From an aircraft number, case aside, to the place in FSAircrafts of the first plan aircraft of that number
// whose title is installed. A number of which none is installed has no key.
KeyedIndex<std::int32_t> InstalledPlacesByNumber(const Session& session);

}  // namespace orlo
