#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/PlaceIndex.h"
#include "core/Session.h"

namespace orlo {

// A plan's aircraft joined to the installed ones: each to the first of its title, case aside. Plan and fleet
// must not change while it lives. Built anew for each operation.
class MatchedAircraft {
  public:
    MatchedAircraft(const Plan& plan, const Fleet& fleet);

    // For each plan aircraft in order, its place in FSAircrafts; -1 where its title isn't installed.
    const std::vector<std::int32_t>& Places() const { return places_; }
    bool AllInstalled() const;

    // The place in FSAircrafts of the first plan aircraft of that number whose title is installed; -1 without
    // one. Place compares the number exactly, PlaceNoCase without regard to case.
    std::int32_t Place(std::string_view acNumber) const;
    std::int32_t PlaceNoCase(std::string_view acNumber) const;

    // The same as aircraft; null without one.
    const FSAircraft* Find(std::string_view acNumber) const { return Aircraft(Place(acNumber)); }
    const FSAircraft* FindNoCase(std::string_view acNumber) const { return Aircraft(PlaceNoCase(acNumber)); }

    // `place` in FSAircrafts.
    const FSAircraft& At(std::int32_t place) const {
        return fleet_.FSAircrafts[static_cast<std::size_t>(place)];
    }

  private:
    const FSAircraft* Aircraft(std::int32_t place) const { return place < 0 ? nullptr : &At(place); }

    const Plan& plan_;
    const Fleet& fleet_;
    std::vector<std::int32_t> places_;
    PlaceIndex installed_;  // places in PlanAircrafts, by number without regard to case
};

}  // namespace orlo
