#pragma once

#include <string>
#include <string_view>

namespace orlo {

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

// The same of a flight's stored time, with its day prefix, where it has one, in front and rolled over.
std::string ConvertTimeText(std::string_view time, std::string_view zone, bool invert);

}  // namespace orlo
