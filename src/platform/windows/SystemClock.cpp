#include "platform/windows/SystemClock.h"

#include "platform/windows/SystemHeader.h"

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

}  // namespace orlo
