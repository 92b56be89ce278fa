#pragma once

#include <string>
#include <string_view>

namespace orlo {

// Shifts a time of day ("HH:MM:SS", or any form that ParseClockTime reads) by a zone text such as
// "GMT +01:00": from GMT to the zone's local time, with `invert` from local time to GMT. The result is
// "HH:MM:SS" and wraps at midnight. A zone that is empty, "GMT" alone, without a colon or without numbers
// shifts nothing. A time that can't be read comes back as it was.
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
