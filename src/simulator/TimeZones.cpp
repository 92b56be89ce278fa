#include "simulator/TimeZones.h"

#include <array>

#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include "core/ClockTime.h"
#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::array<std::string_view, 7> kDayPrefixes = {"0/", "1/", "2/", "3/", "4/", "5/", "6/"};
constexpr std::array<std::string_view, 7> kWeekdayLabels = {
    " (Sunday)", " (Monday)", " (Tuesday)", " (Wednesday)", " (Thursday)", " (Friday)", " (Saturday)"};

// Beyond it a double no longer counts single seconds.
constexpr double kLongestShift = 1e15;

struct ShiftedTime {
    std::string text;
    int dayStep = 0;  // -1, 0 or 1
};

ShiftedTime ShiftTime(std::string_view time, std::string_view zone, bool invert) {
    const auto seconds = ParseClockTime(time);
    if (!seconds) return {std::string(time), 0};
    const ShiftedClock shifted = ShiftClock(*seconds, ParseZone(zone, invert));
    return {FormatClockTime(shifted.seconds), shifted.dayStep};
}

void StepDay(std::string& day, const std::array<std::string_view, 7>& days, int step) {
    if (step == 0) return;
    for (std::size_t i = 0; i < days.size(); ++i) {
        if (day != days[i]) continue;
        day = days[(i + (step > 0 ? 1 : days.size() - 1)) % days.size()];
        return;
    }
}

}  // namespace

std::optional<ZoneShift> ParseZone(std::string_view zone, bool invert) {
    const std::string withoutWord = ReplaceAll(zone, "GMT", "");
    std::string_view rest = TrimBlanks(withoutWord);
    if (rest.empty()) return std::nullopt;
    ZoneShift shift;
    shift.backward = (rest.front() == '-') != invert;
    // The first character is taken for the sign, whatever it is.
    rest.remove_prefix(1);
    const std::size_t colon = rest.find(':');
    if (colon == std::string_view::npos) return std::nullopt;
    const std::string_view sign = shift.backward ? "-" : "+";
    const auto hours = ParseDecimal(Concat(sign, rest.substr(0, colon)));
    const auto minutes = ParseDecimal(Concat(sign, rest.substr(colon + 1)));
    if (!hours || !minutes) return std::nullopt;
    const double seconds = *hours * kSecondsPerHour + *minutes * kSecondsPerMinute;
    if (!(std::fabs(seconds) <= kLongestShift)) return std::nullopt;
    shift.seconds = static_cast<std::int64_t>(RoundHalfEven(seconds));
    return shift;
}

// Only the hours tell whether midnight was crossed.
ShiftedClock ShiftClock(std::int32_t seconds, const std::optional<ZoneShift>& shift) {
    if (!shift) return {seconds, 0};
    const std::int64_t sum = (seconds + shift->seconds) % kSecondsPerDay;
    const auto shifted = static_cast<std::int32_t>(sum < 0 ? sum + kSecondsPerDay : sum);
    const std::int32_t oldHour = seconds / kSecondsPerHour;
    const std::int32_t newHour = shifted / kSecondsPerHour;
    if (shift->backward && newHour > oldHour) return {shifted, -1};
    if (!shift->backward && newHour < oldHour) return {shifted, 1};
    return {shifted, 0};
}

std::string ConvertZone(std::string_view time, std::string_view zone, bool invert) {
    return ShiftTime(time, zone, invert).text;
}

std::string ConvertZoneWeekday(std::string_view time, std::string_view zone, std::string& weekdayLabel,
                               bool invert) {
    ShiftedTime shifted = ShiftTime(time, zone, invert);
    StepDay(weekdayLabel, kWeekdayLabels, shifted.dayStep);
    return std::move(shifted.text);
}

std::string ConvertZoneWeek(std::string_view time, std::string_view zone, std::string& dayPrefix,
                            bool invert) {
    ShiftedTime shifted = ShiftTime(time, zone, invert);
    StepDay(dayPrefix, kDayPrefixes, shifted.dayStep);
    return std::move(shifted.text);
}

std::string ConvertTimeText(std::string_view time, std::string_view zone, bool invert) {
    const SplitTime split = SplitDayPrefix(time);
    std::string prefix(split.Prefix);
    const std::string clock = ConvertZoneWeek(split.Clock, zone, prefix, invert);
    return prefix.append(clock);
}

}  // namespace orlo
