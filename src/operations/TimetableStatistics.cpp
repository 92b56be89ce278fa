#include "operations/TimetableStatistics.h"

#include "core/AircraftClassNames.h"
#include "core/KeyedIndex.h"
#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::size_t kLabelWidth = 20;
constexpr std::string_view kLineEnd = "\r\n";

// The number that the plan gives to each title.
KeyedIndex<std::string_view> NumbersOfTitles(const Plan& plan) {
    KeyedIndex<std::string_view> numbers;
    // The last of several counts, and an index keeps the first.
    for (auto aircraft = plan.PlanAircrafts.rbegin(); aircraft != plan.PlanAircrafts.rend(); ++aircraft) {
        numbers.Add(aircraft->Title, aircraft->ACNumber);
    }
    return numbers;
}

void AppendLine(std::string& out, std::string_view label, std::string_view text) {
    out.append(PadRight(label, kLabelWidth)).append(text).append(kLineEnd);
}

void AppendMaximum(std::string& out, std::string_view label, const GroundCount& count) {
    const std::string at = count.timeOfMaximum.empty() ? "" : Concat(" at ", count.timeOfMaximum);
    AppendLine(out, label, Concat(count.maximum, at));
}

void AppendHour(std::string& out, std::int32_t hour, const TimetableStatistics::HourCount& count) {
    const std::string digits = FormatDigits(hour, 2);
    out.append(Concat(digits, ":00:00-", digits, ":59:59 -> Arrivals ", FormatDigits(count.arrivals, 3),
                      " - Departures ", FormatDigits(count.departures, 3), kLineEnd));
}

}  // namespace

void GroundCount::Reach(std::int32_t count, std::string_view time) {
    seen = count;
    if (count <= maximum) return;
    maximum = count;
    timeOfMaximum = time;
}

void GroundCount::Arrive(std::string_view time) {
    Reach(++current, time);
}

void GroundCount::Depart() {
    seen = --current;
}

void GroundCount::DepartUncounted(std::string_view time) {
    Reach(current + 1, time);
}

TimetableStatistics::TimetableStatistics(const Plan& plan, const Fleet& fleet)
    : plan_(plan), flights_(static_cast<std::size_t>(plan.FlightCount())) {
    const KeyedIndex<std::string_view> numbers = NumbersOfTitles(plan);
    for (const FSAircraft& aircraft : fleet.FSAircrafts) {
        const std::string_view* number = numbers.Find(aircraft.Title);
        classOfNumber_.try_emplace(number != nullptr ? *number : std::string_view(), aircraft.Class);
    }
}

std::int32_t TimetableStatistics::ClassOf(std::string_view acNumber) const {
    const auto found = classOfNumber_.find(acNumber);
    const bool flies =
        found != classOfNumber_.end() && found->second >= kClassMicroProp && found->second <= kClassHugeJet;
    return flies ? found->second : kClassNone;
}

std::int32_t TimetableStatistics::Count(bool arrives, std::int32_t flight, std::string_view time) {
    FlightState& state = flights_[static_cast<std::size_t>(flight)];
    if (state.aircraftClass == kNotLookedUp)
        state.aircraftClass = static_cast<std::int8_t>(ClassOf(plan_.Flights.At(flight).ACNumber));
    GroundCount& ofClass = classes[static_cast<std::size_t>(state.aircraftClass)];
    for (GroundCount* count : {&ofClass, &all}) {
        if (arrives) {
            count->Arrive(time);
        } else if (state.onGround) {
            count->Depart();
        } else {
            count->DepartUncounted(time);
        }
    }
    state.onGround = arrives;
    HourCount* ofHour = nullptr;
    const auto hour = ParseWholeNumber(time.substr(0, 2));
    if (hour && *hour >= 0 && *hour < 24) ofHour = &hours[static_cast<std::size_t>(*hour)];
    for (HourCount* count : {&total, ofHour}) {
        if (count != nullptr) ++(arrives ? count->arrivals : count->departures);
    }
    return state.aircraftClass;
}

std::string StatisticsReport(const TimetableStatistics& statistics, const ReportHead& head) {
    std::string report;
    AppendLine(report, "Airport:", head.airports);
    AppendLine(report, "Time:",
               Concat(RemoveAll(head.day, '#'), " ", head.start, " - ", head.end, " (", head.zone, ")"));
    report.append(kLineEnd);
    AppendLine(report, "Arrivals:", std::to_string(statistics.total.arrivals));
    AppendLine(report, "Departures:", std::to_string(statistics.total.departures));
    report.append(kLineEnd);
    AppendMaximum(report, "Max. Aircraft:", statistics.all);
    for (std::size_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        AppendMaximum(report, Concat("Max. ", kAircraftClassNames[code], ":"), statistics.classes[code]);
    }
    report.append(kLineEnd);
    for (std::int32_t hour = head.firstHour; hour <= head.lastHour; ++hour) {
        AppendHour(report, hour, statistics.hours[static_cast<std::size_t>(hour)]);
    }
    return report;
}

}  // namespace orlo
