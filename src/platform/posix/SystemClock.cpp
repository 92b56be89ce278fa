#include "platform/posix/SystemClock.h"

#include <time.h>

namespace orlo {

std::int64_t SystemClock::Now() const {
    const time_t now = time(nullptr);
    tm local{};
    if (localtime_r(&now, &local) == nullptr) return now;
    return static_cast<std::int64_t>(now) + local.tm_gmtoff;
}

}  // namespace orlo
