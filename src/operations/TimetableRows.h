#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/AircraftRecords.h"
#include "core/CodeNumbers.h"
#include "core/FlightList.h"
#include "forms/RowSource.h"

namespace orlo {

// The columns of lvTimetable.
enum TimetableColumn : std::int32_t {
    kEventTime,
    kEventKind,
    kEventOtherEnd,
    kEventAirline,
    kEventFlightNumber,
    kEventAircraft,
    kEventRegistration,
};

inline constexpr std::int32_t kNoWeekday = 7;
inline constexpr std::int32_t kAircraftNotFound = 0;

// An arrival or a departure.
struct TimetableEvent {
    bool arrives = false;
    std::int32_t seconds = 0;  // since midnight, in the zone of the list
    std::int32_t day = 0;      // 0 to 6 for the label behind the time, kNoWeekday without one
    std::int32_t flight = 0;   // place in the flights
    std::int32_t leg = 0;      // place of the leg that arrives or departs
    std::int32_t aircraft = kAircraftNotFound;
    std::string_view otherEnd;
    std::string_view flightNumber;
};

// The rows of lvTimetable, one an event: 24 bytes each; texts are made when they are asked for. They hold the
// flights as they were, and all else that they show. The tag is the place of the flight, the tool tip that of
// the leg.
class TimetableRows : public RowSource {
  public:
    explicit TimetableRows(FlightList flights);

    const FlightList& Flights() const { return flights_; }
    // The number of the aircraft in events.
    std::int32_t AddAircraft(const FSAircraft& aircraft);
    // Its texts must be lent by Flights().
    void Add(const TimetableEvent& event);
    void AllAdded() { rows_.shrink_to_fit(); }

    std::int32_t Count() const { return static_cast<std::int32_t>(rows_.size()); }
    // Turns all times from local time of one zone to that of another; labels follow across midnight.
    void ChangeZone(std::string_view from, std::string_view to);
    // Bytes held for the rows beside the flights.
    std::size_t MemoryBytes() const;

    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override;
    RowFacts Facts(std::int32_t row) const override;

    bool Arrives(std::int32_t row) const { return RowAt(row).arrives != 0; }
    std::int32_t FlightPlace(std::int32_t row) const { return RowAt(row).flight; }
    std::int32_t LegPlace(std::int32_t row) const { return RowAt(row).leg; }

  private:
    struct Row {
        std::uint32_t seconds : 17;
        std::uint32_t day : 3;
        std::uint32_t arrives : 1;
        std::int32_t flight;
        std::int32_t leg;
        std::int32_t aircraft;
        std::int32_t otherEnd;      // number in texts_
        std::int32_t flightNumber;  // the same
    };
    struct ShownAircraft {
        std::string airline;
        std::string aircraft;
    };
    const Row& RowAt(std::int32_t row) const { return rows_[static_cast<std::size_t>(row)]; }

    FlightList flights_;
    std::vector<Row> rows_;
    CodeNumbers texts_;
    std::vector<ShownAircraft> shown_;  // by number
};

}  // namespace orlo
