#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/Session.h"
#include "operations/TimetableRows.h"

namespace orlo {

inline constexpr std::int32_t kWholeWeek = -1;

// Which events a timetable shows.
struct TimetableFilter {
    std::string airports;           // codes as typed, joined by ","; blanks in it and case don't matter
    std::string zone;               // of all times here and in the rows
    std::int32_t day = kWholeWeek;  // 0 to 6, of flights that repeat by the week
    std::int32_t start = 0;         // seconds since midnight; the window takes both ends
    std::int32_t end = 0;
    std::int32_t mostPercent = 100;  // of a flight
    bool arrivals = true;
    bool departures = true;
    bool IFR = true;
    bool VFR = true;
};

// How often a flight of a period such as "8Hr" flies in a day: 24 / hours, rounded with halves to even. Never
// for a period without a number of hours, with 0 or less, and with 48 or more.
struct DailyRepeat {
    std::int32_t hours = 0;
    std::int32_t count = 0;
};
DailyRepeat RepeatOf(std::string_view period);

// The events in the order of the flights and their legs. A flight whose percent can't be read, and what needs
// a period or time that can't be read, gives none.
std::shared_ptr<TimetableRows> FindTimetableEvents(const Plan& plan, const Fleet& fleet,
                                                   const TimetableFilter& filter);

}  // namespace orlo
