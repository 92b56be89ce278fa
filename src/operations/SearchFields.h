#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/FlightList.h"
#include "core/KeyedIndex.h"
#include "core/Session.h"
#include "simulator/MatchedAircraft.h"

namespace orlo {

// The class number that stands for no condition.
inline constexpr std::int32_t kAnyClass = -1;

// What a search by fields asks for. An empty text, an ACNumber without value and kAnyClass are no conditions.
struct SearchFields {
    bool MatchAll = true;   // AND; otherwise one condition is enough
    std::string Departure;  // part of the code where the flight starts
    std::string Leg;        // part of any other code of the round
    std::string Continent;  // part of the start airport's Region
    std::string Country;    // part of its Country
    std::string Airline;    // part of the aircraft's airline
    bool IFR = false;
    bool VFR = false;
    std::optional<std::string> ACNumber;
    std::int32_t Class = kAnyClass;

    bool AskForScenery() const { return !Continent.empty() || !Country.empty(); }
};

// Tests flights against the fields, all texts without regard to case. Session and aircraft must outlive it.
class FieldSearch {
  public:
    FieldSearch(const SearchFields& fields, const Session& session, const MatchedAircraft& matched);

    // Tests the conditions in order, up to the first failure where all must match, else up to the first
    // success. Where all must match, a flight whose aircraft isn't installed passes the test of the class.
    // Without any condition the result is MatchAll.
    bool Matches(const FlightView& flight) const;

  private:
    bool PassesAtRegion(std::string_view code, const std::string& part,
                        std::string AirportRecord::*field) const;
    bool FliesVia(const FlightView& flight) const;

    const SearchFields& fields_;
    const Session& session_;
    const MatchedAircraft& matched_;
    KeyedIndex<std::int32_t> airports_;  // code to the first place in Airports; only where asked for
    KeyedIndex<bool> airlineFits_;       // by number; only those with an airline
};

}  // namespace orlo
