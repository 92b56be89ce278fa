#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlo {

inline constexpr std::int32_t kSecondsPerMinute = 60;
inline constexpr std::int32_t kSecondsPerHour = 3600;
inline constexpr std::int32_t kSecondsPerDay = 24 * kSecondsPerHour;
inline constexpr std::int32_t kSecondsPerWeek = 7 * kSecondsPerDay;

// The days of a week by their numbers, 0 for Sunday.
inline constexpr std::array<std::string_view, 7> kWeekdayNames = {
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

// Seconds since midnight, 0 to kSecondsPerDay - 1, of a time typed or stored as H:MM or H:MM:SS (24 hours,
// one or two digits a field, blanks around). Nothing for any other text.
std::optional<std::int32_t> ParseClockTime(std::string_view text);

// "HH:MM:SS" of the time of day of a moment; whole days, also negative ones, are dropped.
std::string FormatClockTime(std::int64_t seconds);
// The same, behind `out`.
void AppendClockTime(std::int64_t seconds, std::string& out);
// "YYYY-MM-DD HH:MM:SS" of a moment in seconds since 1970-01-01 00:00:00, from the year 0 to 9999; what lies
// beyond counts as the first or last of these moments.
std::string FormatDateTime(std::int64_t seconds);

// A time of a weekly flight: "d/HH:MM:SS" with d from 0 for Sunday to 6.
struct WeekTime {
    std::int32_t Day = 0;      // 0 to 6
    std::int32_t Seconds = 0;  // since midnight
};
std::optional<WeekTime> ParseWeekTime(std::string_view text);
std::string FormatWeekTime(const WeekTime& time);

// A text split at its first "/": the day prefix with the "/", and what stands behind. Without a "/" the
// prefix is empty.
struct SplitTime {
    std::string_view Prefix;
    std::string_view Clock;
};
SplitTime SplitDayPrefix(std::string_view text);

}  // namespace orlo
