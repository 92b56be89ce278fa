#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/RuleRecords.h"
#include "services/RandomSource.h"

namespace orlo {

// Levels are hundreds of feet, distances nautical miles, courses degrees. Flight rules are "IFR" or "VFR",
// case aside; for a VFR flight only rules whose distance range holds -1 count. The search ends with any rules
// and limits.

// What an aircraft can fly: MinFL and MaxFL of its FSAircraft.
struct LevelLimits {
    std::int32_t MinFL = 0;
    std::int32_t MaxFL = 0;

    bool operator==(const LevelLimits&) const = default;
};

// The levels that suit a leg: Lower, then every Step up to Upper. With a Step of 0, or Upper not above Lower,
// it is Lower alone. 64 bits, since a file may hold any 32-bit numbers.
struct LevelBand {
    std::int64_t Lower = 0;
    std::int64_t Upper = 0;
    std::int64_t Step = 0;
};

// Nothing when no rule matches distance and course.
std::optional<LevelBand> FindLevelBand(const std::vector<FlightLevelRule>& rules,
                                       std::string_view flightRules, std::int32_t distance,
                                       std::int32_t course, LevelLimits limits);

// One level of the band as three digits, drawn so that the lowest and the highest come half as often as the
// others; "100" when no rule matches. Draws only where the band has two levels or more. With `useText` the
// result is that of SuggestFlightLevelText, without a draw.
std::string SuggestFlightLevel(const std::vector<FlightLevelRule>& rules, std::string_view flightRules,
                               std::int32_t distance, std::int32_t course, LevelLimits limits, bool useText,
                               RandomSource& random);

// The band for a person to read, "FL250-370 +020" or "FL250"; "FL100" when no rule matches.
std::string SuggestFlightLevelText(const std::vector<FlightLevelRule>& rules, std::string_view flightRules,
                                   std::int32_t distance, std::int32_t course, LevelLimits limits);

struct LevelCheck {
    bool Right = false;
    std::string Suggestion;  // the band as text; empty when the level is right
};

// Whether `level` is one of the band; wrong, with the suggestion "FL100", when no rule matches.
LevelCheck CheckFlightLevel(const std::vector<FlightLevelRule>& rules, std::string_view flightRules,
                            std::int32_t distance, std::int32_t course, LevelLimits limits,
                            std::int32_t level);

}  // namespace orlo
