#include "platform/posix/SystemClock.h"

#include <locale.h>
#include <time.h>

#include <array>

namespace orlo {

std::int64_t SystemClock::Now() const {
    const time_t now = time(nullptr);
    tm local{};
    if (localtime_r(&now, &local) == nullptr) return now;
    return static_cast<std::int64_t>(now) + local.tm_gmtoff;
}

std::string SystemClock::ShortText() const {
    const time_t now = time(nullptr);
    tm local{};
    if (localtime_r(&now, &local) == nullptr) return {};
    const locale_t form = newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "", nullptr);
    std::array<char, 200> text{};
    if (form == nullptr) {
        strftime(text.data(), text.size(), "%x %X", &local);
    } else {
        strftime_l(text.data(), text.size(), "%x %X", &local, form);
        freelocale(form);
    }
    return text.data();
}

}  // namespace orlo
