#include "simulator/Navigation.h"

#include <optional>

#include "core/ClockTime.h"
#include "core/FlightTimes.h"
#include "core/Number.h"
#include "core/Text.h"
#include "simulator/GreatCircle.h"

namespace orlo {
namespace {

constexpr std::int32_t kMinutesOfUnknownLegs = 15;

std::optional<Position> PlanPosition(const Plan& plan, std::string_view code) {
    const std::int32_t* place = plan.PlanAirportIndex.Find(code);
    if (place == nullptr || *place < 0 || *place >= plan.PlanAirportCount()) return std::nullopt;
    const PlanAirport& airport = plan.PlanAirports[static_cast<std::size_t>(*place)];
    return ParsePosition(airport.Latitude, airport.Longitude);
}

std::optional<Position> SceneryPosition(const std::vector<AirportRecord>& airports, std::string_view code) {
    for (const AirportRecord& airport : airports) {
        if (airport.ICAO == code) return ParsePosition(airport.Latitude, airport.Longitude);
    }
    return Position{};
}

// A speed below 1 is allowed here and gives the time of legs of unknown length.
std::string ArrivalText(std::int32_t distance, std::string_view departureText, bool weekly,
                        std::int32_t speed) {
    const SplitTime split = weekly ? SplitDayPrefix(departureText) : SplitTime{{}, departureText};
    const auto departure = ParseClockTime(split.Clock);
    if (!departure) return std::string(departureText);
    const std::int64_t arrival = EstimateArrival(*departure, distance, speed);
    if (!weekly) return FormatClockTime(arrival);

    if (split.Prefix.empty()) return std::string(departureText);
    const auto day = ParseWholeNumber(split.Prefix.substr(0, split.Prefix.size() - 1));
    if (!day) return std::string(departureText);
    const bool pastMidnight = arrival % kSecondsPerDay < *departure;
    std::int64_t arrivalDay = *day;
    if (pastMidnight && ++arrivalDay == 7) arrivalDay = 0;
    return Concat(arrivalDay, "/", FormatClockTime(arrival));
}

}  // namespace

std::int32_t GetDistance(const Plan& plan, std::string_view from, std::string_view to) {
    if (from == to) return 0;
    const auto fromPosition = PlanPosition(plan, from);
    const auto toPosition = PlanPosition(plan, to);
    return fromPosition && toPosition ? GreatCircleDistance(*fromPosition, *toPosition) : -1;
}

std::int32_t GetCourse(const Plan& plan, std::string_view from, std::string_view to) {
    if (from == to) return -1;
    const auto fromPosition = PlanPosition(plan, from);
    const auto toPosition = PlanPosition(plan, to);
    return fromPosition && toPosition ? GreatCircleCourse(*fromPosition, *toPosition) : -1;
}

std::int32_t GetSceneryDistance(const std::vector<AirportRecord>& airports, std::string_view from,
                                std::string_view to) {
    if (from == to) return 0;
    if (airports.empty()) return -1;
    const auto fromPosition = SceneryPosition(airports, from);
    const auto toPosition = SceneryPosition(airports, to);
    return fromPosition && toPosition ? GreatCircleDistance(*fromPosition, *toPosition) : -1;
}

std::int64_t EstimateArrival(std::int64_t departureSeconds, std::int32_t distance, std::int32_t speed) {
    double minutes = kMinutesOfUnknownLegs;
    if (distance >= 1 && speed >= 1) minutes = RoundHalfEven(static_cast<double>(distance) / speed * 60);
    return departureSeconds + static_cast<std::int64_t>(minutes) * kSecondsPerMinute;
}

std::string GetArrivalTime(std::int32_t distance, std::string_view departureText, std::string_view periodText,
                           std::int32_t speed) {
    if (speed < 1) return std::string(departureText);
    return ArrivalText(distance, departureText, IsWeekPeriod(periodText), speed);
}

std::string GetArrivalTime(const Plan& plan, std::int32_t distance, std::string_view departureText,
                           std::string_view periodText, std::int32_t aircraftIndex, std::int32_t speed) {
    if (aircraftIndex < 0 || aircraftIndex >= plan.PlanAircraftCount()) {
        return GetArrivalTime(distance, departureText, periodText, speed);
    }
    const PlanAircraft& aircraft = plan.PlanAircrafts[static_cast<std::size_t>(aircraftIndex)];
    const auto cruiseSpeed = ParseWholeNumber(aircraft.CruiseSpeed);
    if (!cruiseSpeed) return std::string(departureText);
    return ArrivalText(distance, departureText, IsWeekPeriod(periodText), *cruiseSpeed);
}

}  // namespace orlo
