#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/Session.h"

namespace orlo {

// How many aircraft stand at the airport, and how many stood there at the busiest moment so far.
struct GroundCount {
    std::int32_t current = 0;
    std::int32_t seen = 0;  // by the last event: one that stood there before counts
    std::int32_t maximum = 0;
    std::string timeOfMaximum;  // empty until one counts

    void Arrive(std::string_view time);
    void Depart();
    // Of an aircraft that stood there before the first event.
    void DepartUncounted(std::string_view time);

  private:
    void Reach(std::int32_t count, std::string_view time);
};

// Counts the events of a timetable one after the other.
class TimetableStatistics {
  public:
    TimetableStatistics(const Plan& plan, const Fleet& fleet);

    // `flight` is its place in the plan; `time` starts with "HH". Gives the class of its aircraft, an index
    // of `classes`.
    std::int32_t Count(bool arrives, std::int32_t flight, std::string_view time);

    // The class of the first installed aircraft that the plan knows by this number, exactly; kClassNone
    // without one. Of several plan aircraft with its title the last gives an aircraft its number.
    std::int32_t ClassOf(std::string_view acNumber) const;

    struct HourCount {
        std::int32_t arrivals = 0;
        std::int32_t departures = 0;
    };
    GroundCount all;
    std::array<GroundCount, kClassHugeJet + 1> classes;  // by class; [kClassNone] for all others
    std::array<HourCount, 24> hours;
    HourCount total;

  private:
    const Plan& plan_;
    std::unordered_map<std::string_view, std::int32_t> classOfNumber_;
    struct FlightState {
        std::int8_t aircraftClass = kNotLookedUp;
        bool onGround = false;
    };
    static constexpr std::int8_t kNotLookedUp = -1;
    std::vector<FlightState> flights_;  // by place
};

// What the head of the report says besides.
struct ReportHead {
    std::string airports;
    std::string day;
    std::string start;  // times as typed
    std::string end;
    std::string zone;
    std::int32_t firstHour = 0;  // of the lines by hour
    std::int32_t lastHour = 23;
};

// Lines end with CR LF.
std::string StatisticsReport(const TimetableStatistics& statistics, const ReportHead& head);

}  // namespace orlo
