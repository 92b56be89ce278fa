#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/Session.h"

namespace orlo {

// The plan's aircraft that are installed: for each in the plan's order a copy of the first installed aircraft
// of its title, case aside, with the plan's number as ID. An aircraft of the plan without one has no entry.
// Lives for one operation, which builds it anew.
class MatchedAircraft {
  public:
    explicit MatchedAircraft(const Session& session);

    // The first entry of that number, compared with regard to case; null without one.
    const FSAircraft* Find(std::string_view acNumber) const;
    // Its place; -1 without one.
    std::int32_t Place(std::string_view acNumber) const;

    const std::vector<FSAircraft>& Entries() const { return entries_; }

  private:
    std::vector<FSAircraft> entries_;
    std::unordered_map<std::string_view, std::int32_t> places_;  // IDs lent by the entries
};

}  // namespace orlo
