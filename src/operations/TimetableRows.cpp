#include "operations/TimetableRows.h"

#include <utility>

#include "core/ClockTime.h"
#include "core/Text.h"
#include "simulator/TimeZones.h"

namespace orlo {

TimetableRows::TimetableRows(FlightList flights) : flights_(std::move(flights)) {
    shown_.push_back({{}, "# NOT FOUND #"});
}

std::int32_t TimetableRows::AddAircraft(const FSAircraft& aircraft) {
    shown_.push_back({aircraft.Airline, Concat(aircraft.UIManufacturer, "/", aircraft.UIType)});
    return static_cast<std::int32_t>(shown_.size() - 1);
}

void TimetableRows::Add(const TimetableEvent& event) {
    Row row{};
    row.seconds = static_cast<std::uint32_t>(event.seconds) & 0x1FFFF;
    row.day = static_cast<std::uint32_t>(event.day) & 7;
    row.arrives = event.arrives;
    row.flight = event.flight;
    row.leg = event.leg;
    row.aircraft = event.aircraft;
    row.otherEnd = texts_.Number(event.otherEnd);
    row.flightNumber = texts_.Number(event.flightNumber);
    rows_.push_back(row);
}

void TimetableRows::ChangeZone(std::string_view from, std::string_view to) {
    const auto back = ParseZone(from, true);
    const auto forth = ParseZone(to, false);
    for (Row& row : rows_) {
        const ShiftedClock gmt = ShiftClock(static_cast<std::int32_t>(row.seconds), back);
        const ShiftedClock local = ShiftClock(gmt.seconds, forth);
        row.seconds = static_cast<std::uint32_t>(local.seconds) & 0x1FFFF;
        if (row.day == kNoWeekday) continue;
        const std::int32_t day = static_cast<std::int32_t>(row.day) + gmt.dayStep + local.dayStep;
        row.day = static_cast<std::uint32_t>((day + 7) % 7) & 7;
    }
}

std::size_t TimetableRows::MemoryBytes() const {
    return flights_.HandleBytes() + rows_.capacity() * sizeof(Row) + texts_.Bytes();
}

void TimetableRows::AppendText(std::int32_t row, std::int32_t column, std::string& out) const {
    const Row& event = RowAt(row);
    const ShownAircraft& aircraft = shown_[static_cast<std::size_t>(event.aircraft)];
    switch (column) {
        case kEventTime:
            AppendClockTime(event.seconds, out);
            if (event.day != kNoWeekday) out.append(" (").append(kWeekdayNames[event.day]).append(")");
            break;
        case kEventKind:
            out.append(event.arrives != 0 ? "Arrive" : "Depart");
            break;
        case kEventOtherEnd:
            out.append(texts_.Text(event.otherEnd));
            break;
        case kEventAirline:
            out.append(aircraft.airline);
            break;
        case kEventFlightNumber:
            out.append(texts_.Text(event.flightNumber));
            break;
        case kEventAircraft:
            out.append(aircraft.aircraft);
            break;
        case kEventRegistration:
            out.append(flights_.At(event.flight).TailNumber);
            break;
        default:
            break;
    }
}

RowFacts TimetableRows::Facts(std::int32_t row) const {
    return {std::to_string(FlightPlace(row)), std::to_string(LegPlace(row)), Colour::WindowText};
}

}  // namespace orlo
