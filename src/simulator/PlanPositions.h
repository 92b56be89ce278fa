#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "core/Plan.h"
#include "simulator/GreatCircle.h"

namespace orlo {

// Where the airports of a plan lie, with their sines and cosines prepared. Built once per operation;
// the plan must outlive it, and its list of airports must not change meanwhile.
class PlanPositions {
  public:
    explicit PlanPositions(const Plan& plan);

    // Place of a code in PlanAirports, case aside; -1 when it isn't there.
    std::int32_t Place(std::string_view code) const;

    // Between two places. -1 when either is out of range (-1 too) or has no readable position, and when both
    // lie at one position or at opposite ends of the earth.
    std::int32_t Distance(std::int32_t fromPlace, std::int32_t toPlace) const;  // nautical miles
    std::int32_t Course(std::int32_t fromPlace, std::int32_t toPlace) const;    // degrees, 0 to 359

    // An end of a leg. `Place` is that of the code, as Place(Code) gives it.
    struct End {
        std::string_view Code;
        std::int32_t Place = -1;
    };
    // Distance and course between two ends, as by the two functions below.
    RouteMeasure Measure(const End& from, const End& to) const;

    // Between two codes. Equal codes, compared exactly, have the distance 0 and the course -1, whether they
    // are in the plan or not.
    std::int32_t Distance(std::string_view from, std::string_view to) const;
    std::int32_t Course(std::string_view from, std::string_view to) const;

  private:
    const GreatCirclePoint* PointOf(std::int32_t place) const;

    const KeyedIndex<std::int32_t>& index_;
    std::vector<std::optional<GreatCirclePoint>> points_;  // one a plan airport
};

}  // namespace orlo
