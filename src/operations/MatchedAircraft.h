#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/Session.h"

namespace orlo {

// The plan's aircraft that are installed: each number with the first installed aircraft of its title, case
// aside. An aircraft of the plan without one has no entry. Numbers and aircraft are lent by the session,
// which must not change meanwhile. Lives for one operation, which builds it anew.
class MatchedAircraft {
  public:
    explicit MatchedAircraft(const Session& session);

    // Of the first entry of that number, compared with regard to case; null without one.
    const FSAircraft* Find(std::string_view acNumber) const;
    // Its place in FSAircrafts; -1 without one.
    std::int32_t Place(std::string_view acNumber) const;

    struct Entry {
        std::string_view acNumber;
        std::int32_t place;  // in FSAircrafts
    };
    // In the plan's order.
    const std::vector<Entry>& Entries() const { return entries_; }
    const FSAircraft& At(std::int32_t place) const {
        return session_.FSAircrafts[static_cast<std::size_t>(place)];
    }

  private:
    const Session& session_;
    std::vector<Entry> entries_;
    std::unordered_map<std::string_view, std::int32_t> places_;
};

}  // namespace orlo
