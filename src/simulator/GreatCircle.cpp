#include "simulator/GreatCircle.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "core/Number.h"

namespace orlo {
namespace {

constexpr double kPi = std::numbers::pi;  // the same double as 4 * atan(1)
constexpr std::int64_t kMinutesPerTurn = 360 * 60;

double Radians(std::int32_t degrees, std::int32_t minutes) {
    return (degrees + minutes / 60.0) * kPi / 180;
}

std::int64_t MinutesOfArc(std::int32_t degrees, std::int32_t minutes) {
    return std::int64_t{degrees} * 60 + minutes;
}

// Compares whole minutes, which is exact; the cosine of the angle between them may not come out as 1.
bool AtOnePlace(const Position& a, const Position& b) {
    const std::int64_t east =
        MinutesOfArc(a.LonDegrees, a.LonMinutes) - MinutesOfArc(b.LonDegrees, b.LonMinutes);
    return MinutesOfArc(a.LatDegrees, a.LatMinutes) == MinutesOfArc(b.LatDegrees, b.LatMinutes) &&
           east % kMinutesPerTurn == 0;
}

// The angle between two points as seen from the earth's centre.
std::optional<double> CentralAngle(const GreatCirclePoint& from, const GreatCirclePoint& to) {
    if (AtOnePlace(from.Place, to.Place)) return std::nullopt;
    return ArcCos(from.SinLatitude * to.SinLatitude +
                  from.CosLatitude * to.CosLatitude * std::cos(from.Longitude - to.Longitude));
}

std::int32_t DistanceOf(double angle) {
    return static_cast<std::int32_t>(RoundHalfEven(std::fabs(angle * 180 * 60 / kPi)));
}

std::int32_t CourseOf(double angle, const GreatCirclePoint& from, const GreatCirclePoint& to) {
    // Along a meridian only whole degrees count, so within one degree the course is always 0.
    if (from.Longitude == to.Longitude) return from.Place.LatDegrees <= to.Place.LatDegrees ? 0 : 180;
    auto course =
        ArcCos((to.SinLatitude - from.SinLatitude * std::cos(angle)) / (std::sin(angle) * from.CosLatitude));
    if (!course) return -1;
    if (!(std::sin(to.Longitude - from.Longitude) < 0)) course = 2 * kPi - *course;
    const auto degrees = static_cast<std::int32_t>(RoundHalfEven(std::fabs(*course * 180 / kPi)));
    return degrees >= 360 ? degrees - 360 : degrees;
}

}  // namespace

std::optional<double> ArcCos(double x) {
    const double square = 1 - x * x;
    if (!(square > 0)) return std::nullopt;
    return std::atan(-x / std::sqrt(square)) + 2 * std::atan(1.0);
}

bool ParseCoordinate(std::string_view text, std::int32_t& degrees, std::int32_t& minutes) {
    degrees = 0;
    minutes = 0;
    const std::size_t star = text.find('*');
    const std::size_t point = text.find('.');
    if (star == std::string_view::npos || point == std::string_view::npos) return false;
    if (star == 0 || point < star) return false;
    const auto parsedDegrees = ParseWholeNumber(text.substr(1, star - 1));
    const auto parsedMinutes = ParseWholeNumber(text.substr(star + 1, point - star - 1));
    constexpr std::int32_t kHasNoNegative = std::numeric_limits<std::int32_t>::min();
    if (!parsedDegrees || !parsedMinutes || parsedDegrees == kHasNoNegative ||
        parsedMinutes == kHasNoNegative) {
        return false;
    }
    const bool negative = std::string_view("SsEe").find(text.front()) != std::string_view::npos;
    degrees = negative ? -*parsedDegrees : *parsedDegrees;
    minutes = negative ? -*parsedMinutes : *parsedMinutes;
    return true;
}

std::optional<Position> ParsePosition(std::string_view latitude, std::string_view longitude) {
    Position position;
    if (!ParseCoordinate(latitude, position.LatDegrees, position.LatMinutes) ||
        !ParseCoordinate(longitude, position.LonDegrees, position.LonMinutes)) {
        return std::nullopt;
    }
    return position;
}

GreatCirclePoint PreparePoint(const Position& position) {
    GreatCirclePoint point;
    point.Latitude = Radians(position.LatDegrees, position.LatMinutes);
    point.Longitude = Radians(position.LonDegrees, position.LonMinutes);
    point.SinLatitude = std::sin(point.Latitude);
    point.CosLatitude = std::cos(point.Latitude);
    point.Place = position;
    return point;
}

std::int32_t GreatCircleDistance(const GreatCirclePoint& from, const GreatCirclePoint& to) {
    const auto angle = CentralAngle(from, to);
    return angle ? DistanceOf(*angle) : -1;
}

std::int32_t GreatCircleDistance(const Position& from, const Position& to) {
    return GreatCircleDistance(PreparePoint(from), PreparePoint(to));
}

std::int32_t GreatCircleCourse(const GreatCirclePoint& from, const GreatCirclePoint& to) {
    const auto angle = CentralAngle(from, to);
    return angle ? CourseOf(*angle, from, to) : -1;
}

std::int32_t GreatCircleCourse(const Position& from, const Position& to) {
    return GreatCircleCourse(PreparePoint(from), PreparePoint(to));
}

RouteMeasure MeasureRoute(const GreatCirclePoint& from, const GreatCirclePoint& to) {
    const auto angle = CentralAngle(from, to);
    return angle ? RouteMeasure{DistanceOf(*angle), CourseOf(*angle, from, to)} : RouteMeasure{};
}

}  // namespace orlo
