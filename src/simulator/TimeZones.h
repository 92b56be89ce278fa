#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlo {

// A zone as a shift of the clock.
struct ZoneShift {
    bool backward = false;
    std::int64_t seconds = 0;  // negative when backward
};

// The shift from GMT to the local time of a zone text such as "GMT +01:00", with `invert` back to GMT.
// Nothing for a zone that is empty, "GMT" alone, without a colon or without numbers; it shifts no time.
std::optional<ZoneShift> ParseZone(std::string_view zone, bool invert);

// A time of day behind a shift, and the day that it falls on.
struct ShiftedClock {
    std::int32_t seconds = 0;  // since midnight
    int dayStep = 0;           // -1 the day before, 1 the day after
};
ShiftedClock ShiftClock(std::int32_t seconds, const std::optional<ZoneShift>& shift);

// Shifts a time of day ("HH:MM:SS", or any form that ParseClockTime reads) by a zone text. The result is
// "HH:MM:SS" and wraps at midnight. A time that can't be read comes back as it was.
std::string ConvertZone(std::string_view time, std::string_view zone, bool invert);

// The same; where the shift crosses midnight, a label " (Sunday)" to " (Saturday)" becomes that of the day
// before or after. Any other label stays.
std::string ConvertZoneWeekday(std::string_view time, std::string_view zone, std::string& weekdayLabel,
                               bool invert);

// The same with a day prefix "0/" (Sunday) to "6/".
std::string ConvertZoneWeek(std::string_view time, std::string_view zone, std::string& dayPrefix,
                            bool invert);

// The same for a time as a flight stores it; a day prefix stays in front and changes across midnight.
std::string ConvertTimeText(std::string_view time, std::string_view zone, bool invert);

}  // namespace orlo
