#include "platform/windows/SystemClock.h"

#include <array>

#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"

namespace orlo {
namespace {

constexpr std::int64_t kTicksPerSecond = 10'000'000;
constexpr std::int64_t kSecondsTo1970 = 11'644'473'600;  // the system counts from 1601-01-01

}  // namespace

std::int64_t SystemClock::Now() const {
    SYSTEMTIME local{};
    FILETIME ticks{};
    GetLocalTime(&local);
    if (SystemTimeToFileTime(&local, &ticks) == 0) GetSystemTimeAsFileTime(&ticks);
    const auto count = (std::int64_t{ticks.dwHighDateTime} << 32) + ticks.dwLowDateTime;
    return count / kTicksPerSecond - kSecondsTo1970;
}

std::string SystemClock::ShortText() const {
    std::array<wchar_t, 200> date{};
    std::array<wchar_t, 200> time{};
    const int size = static_cast<int>(date.size());
    GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date.data(), size);
    GetTimeFormatW(LOCALE_USER_DEFAULT, 0, nullptr, nullptr, time.data(), size);
    return NarrowText(date.data()) + " " + NarrowText(time.data());
}

}  // namespace orlo
