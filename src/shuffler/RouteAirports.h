#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/AirlineRecords.h"
#include "core/AirportRecord.h"
#include "core/CodeNumbers.h"
#include "core/KeyedIndex.h"
#include "simulator/PlanPositions.h"

namespace orlo {

// What the shuffle must know of an airport of a route, looked up once a code. Sets are places in the list of
// ListAirlineSets; -1: none.
struct RouteAirport {
    std::int32_t place = -1;    // in the plan's positions, -1 unknown
    std::int32_t country = -1;  // a number for each REGION/COUNTRY; -1 for an airport without a record
    std::int32_t airportSet = -1;
    std::int32_t citySet = -1;
    std::int32_t stateSet = -1;
    std::int32_t countrySet = -1;
    std::int32_t regionSet = -1;
    std::int32_t minRunway = 0;   // the shorter of takeoff and landing
    std::int32_t minParking = 0;  // 9999 without parkings
    std::int32_t surface = 0;     // the greater of takeoff and landing

    bool Known() const { return country >= 0; }
};

// The airports of a plan's routes. Codes are numbered as they are spelled, case included; their records and
// sets are found without regard to case, the first of a name.
class RouteAirports {
  public:
    // The arguments must outlive this and stay unchanged.
    RouteAirports(const std::vector<AirportRecord>& records, const PlanPositions& positions,
                  const AirlineSets& sets);

    // The number of a code, whose text must outlive this. Looks a new code up.
    std::int32_t Number(std::string_view code) {
        const std::int32_t number = codes_.Number(code);
        if (static_cast<std::size_t>(number) == airports_.size()) airports_.push_back(Resolve(code));
        return number;
    }
    const RouteAirport& At(std::int32_t number) const { return airports_[static_cast<std::size_t>(number)]; }

    std::string_view Code(std::int32_t number) const { return codes_.Text(number); }

    // Nautical miles between two numbers: 0 for the same, -1 where it is unknown.
    std::int32_t Distance(std::int32_t from, std::int32_t to) const;
    // Whole degrees; -1 for the same number and where it is unknown.
    std::int32_t Course(std::int32_t from, std::int32_t to) const;

  private:
    RouteAirport Resolve(std::string_view code);

    const std::vector<AirportRecord>& records_;
    const PlanPositions& positions_;
    KeyedIndex<std::int32_t> recordIndex_;
    KeyedIndex<std::int32_t> airportSets_;
    KeyedIndex<std::int32_t> citySets_;
    KeyedIndex<std::int32_t> stateSets_;
    KeyedIndex<std::int32_t> countrySets_;
    KeyedIndex<std::int32_t> regionSets_;
    KeyedIndex<std::int32_t> countries_;

    CodeNumbers codes_;
    std::vector<RouteAirport> airports_;  // by number
};

}  // namespace orlo
