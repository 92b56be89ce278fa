#include "core/ClockTime.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

// One or two digits up to `most`.
std::optional<std::int32_t> ParseTimeField(std::string_view text, std::int32_t most) {
    if (text.empty() || text.size() > 2) return std::nullopt;
    std::int32_t value = 0;
    for (char digit : text) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    if (value > most) return std::nullopt;
    return value;
}

}  // namespace

std::optional<std::int32_t> ParseClockTime(std::string_view text) {
    text = TrimBlanks(text);
    const std::size_t first = text.find(':');
    if (first == std::string_view::npos) return std::nullopt;
    const std::size_t second = text.find(':', first + 1);
    const bool hasSeconds = second != std::string_view::npos;
    const auto hours = ParseTimeField(text.substr(0, first), 23);
    const auto minutes =
        ParseTimeField(text.substr(first + 1, hasSeconds ? second - first - 1 : text.npos), 59);
    const auto seconds = hasSeconds ? ParseTimeField(text.substr(second + 1), 59) : 0;
    if (!hours || !minutes || !seconds) return std::nullopt;
    return *hours * kSecondsPerHour + *minutes * kSecondsPerMinute + *seconds;
}

std::string FormatClockTime(std::int64_t seconds) {
    std::string text;
    AppendClockTime(seconds, text);
    return text;
}

void AppendClockTime(std::int64_t seconds, std::string& out) {
    std::int64_t time = seconds % kSecondsPerDay;
    if (time < 0) time += kSecondsPerDay;
    const auto digits = [](std::int64_t number) {
        return std::array{static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
    };
    const auto hours = digits(time / kSecondsPerHour);
    const auto minutes = digits(time / kSecondsPerMinute % kSecondsPerMinute);
    const auto rest = digits(time % kSecondsPerMinute);
    const std::array text = {hours[0], hours[1], ':', minutes[0], minutes[1], ':', rest[0], rest[1]};
    out.append(text.data(), text.size());
}

std::string FormatDateTime(std::int64_t seconds) {
    using namespace std::chrono;
    constexpr auto kFirst = sys_seconds(sys_days(year(0) / January / 1)).time_since_epoch();
    constexpr auto kBehindLast = sys_seconds(sys_days(year(10000) / January / 1)).time_since_epoch();
    seconds = std::clamp<std::int64_t>(seconds, kFirst.count(), kBehindLast.count() - 1);
    const year_month_day date(floor<days>(sys_seconds(std::chrono::seconds(seconds))));
    return Concat(FormatDigits(static_cast<int>(date.year()), 4), "-",
                  FormatDigits(static_cast<unsigned>(date.month()), 2), "-",
                  FormatDigits(static_cast<unsigned>(date.day()), 2), " ", FormatClockTime(seconds));
}

std::optional<WeekTime> ParseWeekTime(std::string_view text) {
    const SplitTime split = SplitDayPrefix(text);
    const auto seconds = ParseClockTime(split.Clock);
    if (split.Prefix.size() != 2 || split.Prefix[0] < '0' || split.Prefix[0] > '6' || !seconds)
        return std::nullopt;
    return WeekTime{split.Prefix[0] - '0', *seconds};
}

std::string FormatWeekTime(const WeekTime& time) {
    return Concat(time.Day, "/", FormatClockTime(time.Seconds));
}

SplitTime SplitDayPrefix(std::string_view text) {
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos) return {{}, text};
    return {text.substr(0, slash + 1), text.substr(slash + 1)};
}

}  // namespace orlo
