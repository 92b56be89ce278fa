#include "desktop/AxisSteps.h"

#include <algorithm>
#include <cmath>

#include "core/ClockTime.h"

namespace orlo {
namespace {

constexpr double kHuge = 1e9;

}  // namespace

double ValueStep(double range, int most, bool whole) {
    if (!(range > 0)) return 1;
    const double least = range / std::max(most, 1);
    const double power = std::pow(10, std::floor(std::log10(least)));
    double step = power * 10;
    for (const double times : {1, 2, 3, 4, 5}) {
        if (power * times >= least) {
            step = power * times;
            break;
        }
    }
    if (!(step > 0)) return range;  // smaller than numbers go
    return whole ? std::max(step, 1.0) : step;
}

double TimeStep(double range, int most) {
    constexpr double kSteps[] = {1,   2,   5,    10,   15,   30,    60,    120,  300,
                                 600, 900, 1800, 3600, 7200, 10800, 14400, 21600};
    for (const double step : kSteps) {
        if (range / step <= most) return step;
    }
    return std::max(1.0, std::ceil(range / kSecondsPerDay / 2 / std::max(most, 1))) * kSecondsPerDay / 2;
}

int NameStep(int names, int most) {
    constexpr int kSteps[] = {1, 2, 3, 4, 6, 12};
    most = std::max(most, 1);
    for (const int step : kSteps) {
        if ((names + step - 1) / step <= most) return step;
    }
    return (names + most - 1) / most;
}

QString ValueText(double value, int decimals) {
    if (value >= kHuge) return QString::number(value, 'g', 3);
    return QString::number(value, 'f', value == std::floor(value) ? 0 : decimals);
}

QString ClockText(double seconds) {
    const auto whole = static_cast<std::int64_t>(std::clamp(seconds, 0.0, kHuge));
    if (whole == kSecondsPerDay) return "24:00";
    const QString text = QString::fromStdString(FormatClockTime(whole));
    return whole % kSecondsPerMinute == 0 ? text.left(5) : text;
}

}  // namespace orlo
