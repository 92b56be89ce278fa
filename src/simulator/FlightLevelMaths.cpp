#include "simulator/FlightLevelMaths.h"

#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

using LevelRules = std::vector<FlightLevelRule>;

bool CourseFits(const FlightLevelRule& rule, std::int32_t course) {
    return rule.CourseFrom <= course && course <= rule.CourseTo;
}

// The first rule that `fits`; null without one.
template <typename Fits>
const FlightLevelRule* FirstRule(const LevelRules& rules, Fits fits) {
    for (const FlightLevelRule& rule : rules) {
        if (fits(rule)) return &rule;
    }
    return nullptr;
}

// The rule for the course that reaches highest among those that begin at or below the aircraft's highest
// level, the first of equal ones; null without one. Distance doesn't count.
const FlightLevelRule* HighestReachable(const LevelRules& rules, std::int32_t course, LevelLimits limits) {
    const FlightLevelRule* best = nullptr;
    for (const FlightLevelRule& rule : rules) {
        if (rule.LevelFrom > limits.MaxFL || !CourseFits(rule, course)) continue;
        if (best == nullptr || rule.LevelTo > best->LevelTo) best = &rule;
    }
    return best;
}

// The rule that serves the aircraft: `rule` where the aircraft reaches its top or begins inside its limits,
// else the highest reachable one, and `rule` again where there is none.
const FlightLevelRule& ServingRule(const LevelRules& rules, const FlightLevelRule& rule, std::int32_t course,
                                   LevelLimits limits) {
    const bool topWithinReach = rule.LevelTo <= limits.MaxFL;
    const bool beginsInside = limits.MinFL <= rule.LevelFrom && rule.LevelFrom <= limits.MaxFL;
    if (topWithinReach || beginsInside) return rule;
    const FlightLevelRule* highest = HighestReachable(rules, course, limits);
    return highest == nullptr ? rule : *highest;
}

// The lowest level of the rule's grid at or above the aircraft's minimum; LevelFrom where its step doesn't
// climb.
std::int64_t LowestLevel(const FlightLevelRule& rule, LevelLimits limits) {
    const std::int64_t missing = std::int64_t{limits.MinFL} - rule.LevelFrom;
    if (missing <= 0 || rule.LevelStep <= 0) return rule.LevelFrom;
    const std::int64_t steps = (missing + rule.LevelStep - 1) / rule.LevelStep;
    return rule.LevelFrom + steps * rule.LevelStep;
}

LevelBand BandOf(const FlightLevelRule& rule, LevelLimits limits) {
    const bool cutByAircraft = rule.LevelTo > limits.MaxFL && rule.LevelFrom <= limits.MaxFL;
    return {LowestLevel(rule, limits), cutByAircraft ? limits.MaxFL : rule.LevelTo, rule.LevelStep};
}

// Steps from the lowest level to the highest one on the grid; 0 where Lower stands alone.
std::int64_t StepCount(const LevelBand& band) {
    if (band.Step == 0 || band.Upper <= band.Lower) return 0;
    return (band.Upper - band.Lower) / band.Step;
}

std::string LevelText(std::int64_t level) {
    return FormatDigits(level, 3);
}

std::string BandText(const LevelBand& band) {
    const std::int64_t steps = StepCount(band);
    if (steps == 0) return Concat("FL", LevelText(band.Lower));
    return Concat("FL", LevelText(band.Lower), "-", LevelText(band.Lower + band.Step * steps), " +",
                  LevelText(band.Step));
}

bool OnGrid(const LevelBand& band, std::int64_t level) {
    if (band.Step == 0 || band.Upper <= band.Lower) return level == band.Lower;
    return band.Lower <= level && level <= band.Upper && (level - band.Lower) % band.Step == 0;
}

}  // namespace

std::optional<LevelBand> FindLevelBand(const LevelRules& rules, std::string_view flightRules,
                                       std::int32_t distance, std::int32_t course, LevelLimits limits) {
    if (EqualNoCase(flightRules, "VFR")) distance = -1;
    const FlightLevelRule* rule = FirstRule(rules, [&](const FlightLevelRule& candidate) {
        return candidate.DistanceFrom <= distance && distance <= candidate.DistanceTo &&
               CourseFits(candidate, course);
    });
    if (rule == nullptr) return std::nullopt;

    LevelBand band = BandOf(ServingRule(rules, *rule, course, limits), limits);
    if (band.Lower >= limits.MinFL) return band;

    rule = FirstRule(rules, [&](const FlightLevelRule& candidate) {
        return candidate.LevelFrom >= limits.MinFL && CourseFits(candidate, course);
    });
    if (rule != nullptr) band = BandOf(ServingRule(rules, *rule, course, limits), limits);
    // A further search would find the same rule again.
    if (band.Lower < limits.MinFL) band.Lower = limits.MinFL;
    return band;
}

std::string SuggestFlightLevel(const LevelRules& rules, std::string_view flightRules, std::int32_t distance,
                               std::int32_t course, LevelLimits limits, bool useText, RandomSource& random) {
    if (useText) return SuggestFlightLevelText(rules, flightRules, distance, course, limits);
    const auto band = FindLevelBand(rules, flightRules, distance, course, limits);
    if (!band) return "100";
    const std::int64_t steps = StepCount(*band);
    if (steps == 0) return LevelText(band->Lower);
    const auto drawn = static_cast<std::int64_t>(RoundHalfEven(random.Next() * static_cast<double>(steps)));
    return LevelText(band->Lower + band->Step * drawn);
}

std::string SuggestFlightLevelText(const LevelRules& rules, std::string_view flightRules,
                                   std::int32_t distance, std::int32_t course, LevelLimits limits) {
    const auto band = FindLevelBand(rules, flightRules, distance, course, limits);
    return band ? BandText(*band) : "FL100";
}

LevelCheck CheckFlightLevel(const LevelRules& rules, std::string_view flightRules, std::int32_t distance,
                            std::int32_t course, LevelLimits limits, std::int32_t level) {
    const auto band = FindLevelBand(rules, flightRules, distance, course, limits);
    if (!band) return {false, "FL100"};
    if (OnGrid(*band, level)) return {true, {}};
    return {false, BandText(*band)};
}

}  // namespace orlo
