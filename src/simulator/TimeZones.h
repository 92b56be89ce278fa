#pragma once

#include <array>
#include <string>
#include <string_view>

namespace orlo {

// The zones offered for showing times, in the order of their lists.
inline constexpr std::array<std::string_view, 38> kTimeZones = {
    "GMT -12:00", "GMT -11:00", "GMT -10:00", "GMT -09:00", "GMT -08:00", "GMT -07:00", "GMT -06:00",
    "GMT -05:00", "GMT -04:00", "GMT -03:30", "GMT -03:00", "GMT -02:30", "GMT -02:00", "GMT -01:00",
    "GMT",        "GMT +01:00", "GMT +02:00", "GMT +03:00", "GMT +03:30", "GMT +04:00", "GMT +04:30",
    "GMT +05:00", "GMT +05:30", "GMT +05:40", "GMT +06:00", "GMT +06:30", "GMT +06:45", "GMT +07:00",
    "GMT +07:30", "GMT +08:00", "GMT +09:00", "GMT +09:30", "GMT +10:00", "GMT +10:30", "GMT +11:00",
    "GMT +12:00", "GMT +13:00", "GMT +14:00",
};

// Shifts a time of day ("HH:MM:SS", or any form that ParseClockTime reads) by a zone text such as
// "GMT +01:00": from GMT to the zone's local time, with `invert` from local time to GMT. The result is
// "HH:MM:SS" and wraps at midnight. A zone that is empty, "GMT" alone, without a colon or without numbers
// shifts nothing. A time that can't be read comes back as it was.
std::string ConvertZone(std::string_view time, std::string_view zone, bool invert);

// The same; a label " (Sunday)" to " (Saturday)" goes to the day before or behind when the shift crosses
// midnight. Any other label stays.
std::string ConvertZoneWeekday(std::string_view time, std::string_view zone, std::string& weekdayLabel,
                               bool invert);

// The same with a day prefix "0/" (Sunday) to "6/".
std::string ConvertZoneWeek(std::string_view time, std::string_view zone, std::string& dayPrefix,
                            bool invert);

}  // namespace orlo
