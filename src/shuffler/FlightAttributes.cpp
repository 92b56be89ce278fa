#include "shuffler/FlightAttributes.h"

#include <algorithm>

#include "core/Number.h"
#include "core/Text.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/Navigation.h"

namespace orlo {
namespace {

// 0 to `last`, the ends half as often as the others.
std::int32_t DrawUpTo(std::int32_t last, RandomSource& random) {
    return static_cast<std::int32_t>(RoundHalfEven(last * random.Next()));
}

std::string_view PatternAt(std::string_view patterns, std::int32_t index) {
    for (; index > 0; --index) patterns.remove_prefix(patterns.find(',') + 1);
    return BeforeFirst(patterns, ",");
}

char DrawDigit(RandomSource& random) {
    return static_cast<char>('0' + DrawUpTo(9, random));
}

char DrawLetter(RandomSource& random) {
    return static_cast<char>('A' + DrawUpTo(25, random));
}

char DrawCharacter(char pattern, RandomSource& random) {
    switch (pattern) {
        case '!':
            return DrawDigit(random);
        case '.':
            return DrawLetter(random);
        case '?':
            return DrawUpTo(1, random) == 1 ? DrawDigit(random) : DrawLetter(random);
        default:
            return pattern;
    }
}

void SetNumberModes(std::string_view mode, WorkingFlight& flight) {
    for (std::int32_t i = 0; i < flight.LegCount; ++i) flight.LegAt(i).NumberMode = mode;
}

}  // namespace

std::string CreateTailNumber(std::string_view patterns, bool removeMinus, RandomSource& random) {
    if (patterns.empty()) return {};
    const auto last = static_cast<std::int32_t>(std::count(patterns.begin(), patterns.end(), ','));
    const std::string_view pattern = PatternAt(patterns, DrawUpTo(last, random));
    std::string tailNumber;
    for (char character : pattern) tailNumber.push_back(DrawCharacter(character, random));
    if (removeMinus) std::erase(tailNumber, '-');
    return tailNumber;
}

void ApplyFlightRules(std::int32_t aircraftClass, WorkingFlight& flight) {
    if (!EqualNoCase(flight.FlightType, "VFR")) return;
    if (aircraftClass == kClassNotUsed || aircraftClass >= kClassLargeProp) {
        flight.FlightType = "IFR";
        SetNumberModes("F", flight);
    } else if (aircraftClass == kClassMicroProp || aircraftClass == kClassMidProp) {
        SetNumberModes("R", flight);
    }
}

void ApplyFlightLevels(const std::vector<FlightLevelRule>& rules, const FSAircraft& aircraft,
                       const RouteAirports& airports, RandomSource& random, WorkingFlight& flight) {
    const LevelLimits limits{aircraft.MinFL, aircraft.MaxFL};
    const auto apply = [&](std::int32_t index) {
        WorkingLeg& leg = flight.LegAt(index);
        const std::int32_t course = airports.Course(flight.LegBefore(index).Airport, leg.Airport);
        leg.FlightLevel =
            SuggestFlightLevel(rules, flight.FlightType, leg.Distance, course, limits, false, random);
    };
    for (std::int32_t i = 1; i < flight.LegCount; ++i) apply(i);
    if (flight.LegCount > 0) apply(0);
}

void ApplyFlightTimes(std::int32_t speed, WorkingFlight& flight) {
    for (std::int32_t i = 0; i < flight.LegCount; ++i) {
        WorkingLeg& leg = flight.LegAt(i);
        leg.ETA = GetArrivalTime(leg.Distance, leg.DepartTime, flight.Period, speed);
    }
}

}  // namespace orlo
