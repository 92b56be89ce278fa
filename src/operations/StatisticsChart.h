#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "forms/Chart.h"
#include "operations/TimetableStatistics.h"

namespace orlo {

// The aircraft on ground along the walk of the rows, all and by class. A long walk is kept in stretches of
// the same number of rows: of each the greatest counts, at the moment when most aircraft stood there.
class GroundSteps {
  public:
    static constexpr std::int32_t kMostSteps = 20000;

    explicit GroundSteps(std::int32_t rows);

    // To be called behind each TimetableStatistics::Count, with the class that it gave. `seconds` since
    // midnight.
    void Add(const TimetableStatistics& statistics, std::int32_t aircraftClass, std::int32_t seconds);

    // One value a step: [0] of all aircraft, [code] of a class.
    const std::vector<std::int32_t>& Counts(std::size_t code) const { return counts_[code]; }
    // Of the steps: seconds since midnight where the rows are in the order of time, else their numbers
    // from 1.
    std::vector<double> Places() const;
    bool InOrderOfTime() const { return inOrder_; }

  private:
    std::int32_t stretch_;  // rows a step
    std::int32_t rows_ = 0;
    std::int32_t lastSeconds_ = 0;
    bool inOrder_ = true;
    std::array<std::vector<std::int32_t>, kClassHugeJet + 1> counts_;
    std::vector<std::int32_t> seconds_;
    std::vector<std::int32_t> numbers_;
};

// The codes as the timetable reads them, joined by ",".
std::string AskedAirports(const ReportHead& head);

// Arrivals and departures by hour, and below them the steps. `stands`: of the one airport of the timetable,
// where it is known.
ChartContent StatisticsChart(const TimetableStatistics& statistics, const GroundSteps& steps,
                             const ReportHead& head, std::optional<std::int32_t> stands);

}  // namespace orlo
