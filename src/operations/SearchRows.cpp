#include "operations/SearchRows.h"

#include <unordered_map>

#include "core/FlightTimes.h"
#include "core/Number.h"
#include "core/Text.h"
#include "simulator/TimeZones.h"

namespace orlo {
namespace {

constexpr std::string_view kNotFound = "# NOT FOUND #";
constexpr std::size_t kNumberStart = 3;  // behind "AC#"

// The number filled with zeros; any other text as it stands.
std::string Filled(std::string_view text, int digits) {
    const auto number = ParseWholeNumber(text);
    return number ? FormatDigits(*number, digits) : std::string(text);
}

void AppendVia(const FlightView& flight, std::string& out) {
    std::int32_t left = flight.LegCount - 1;
    bool first = true;
    for (const LegView& leg : flight) {
        if (left-- <= 0) return;
        if (!first) out.append(" - ");
        first = false;
        out.append(leg.Destination);
    }
}

}  // namespace

std::string PeriodColumn(std::string_view period) {
    if (IsWeekPeriod(period) || period.size() < 2) return std::string(period);
    return Concat(Filled(period.substr(0, period.size() - 2), 2), "Hr");
}

std::string NumberColumn(std::string_view acNumber) {
    if (acNumber.size() <= kNumberStart) return {};
    return Filled(acNumber.substr(kNumberStart), 4);
}

std::string PercentColumn(std::string_view percent) {
    if (percent.ends_with('%')) percent.remove_suffix(1);
    return Concat(Filled(percent, 2), "%");
}

SearchRows::SearchRows(FlightList flights, std::vector<std::string> errors, const MatchedAircraft& matched,
                       std::string_view zone)
    : flights_(std::move(flights)), errors_(std::move(errors)), zone_(zone) {
    shown_.push_back({std::string(kNotFound), {}});
    // Many numbers may share one installed aircraft; its texts, of any length, are held once.
    std::unordered_map<std::int32_t, std::int32_t> shownOfPlace = {{-1, 0}};
    for (const std::int32_t place : matched.Places()) {
        if (!shownOfPlace.try_emplace(place, static_cast<std::int32_t>(shown_.size())).second) continue;
        shown_.push_back({matched.At(place).Airline, matched.At(place).Title});
    }
    aircraftOfRow_.reserve(static_cast<std::size_t>(flights_.Count()));
    for (std::int32_t row = 0; row < flights_.Count(); ++row) {
        aircraftOfRow_.push_back(shownOfPlace[matched.Place(flights_.At(row).ACNumber)]);
    }
}

std::size_t SearchRows::MemoryBytes() const {
    return flights_.HandleBytes() + errors_.capacity() * sizeof(std::string) +
           aircraftOfRow_.capacity() * sizeof(std::int32_t);
}

void SearchRows::SetFlight(std::int32_t row, const Flight& flight, const MatchedAircraft& matched) {
    const FSAircraft* entry = matched.Find(flight.ACNumber);
    std::int32_t shown = 0;
    if (entry != nullptr) {
        shown = static_cast<std::int32_t>(shown_.size());
        shown_.push_back({entry->Airline, entry->Title});
    }
    if (row < flights_.Count()) {
        flights_.Replace(row, flight);
        aircraftOfRow_[static_cast<std::size_t>(row)] = shown;
    } else {
        flights_.Append(flight);
        aircraftOfRow_.push_back(shown);
    }
}

void SearchRows::AppendText(std::int32_t row, std::int32_t column, std::string& out) const {
    const auto place = static_cast<std::size_t>(row);
    if (column == kColumnErrors) {
        if (place < errors_.size()) out.append(errors_[place]);
        return;
    }
    const ShownAircraft& aircraft = shown_[static_cast<std::size_t>(aircraftOfRow_[place])];
    if (column == kColumnAirline) {
        out.append(aircraft.airline);
        return;
    }
    if (column == kColumnAircraft) {
        out.append(aircraft.title);
        return;
    }
    const FlightView flight = flights_.At(row);
    switch (column) {
        case kColumnNumber:
            out.append(NumberColumn(flight.ACNumber));
            break;
        case kColumnRegistration:
            out.append(flight.TailNumber);
            break;
        case kColumnDeparture:
            out.append(flight.StartAirport());
            break;
        case kColumnLegs:
            AppendVia(flight, out);
            break;
        case kColumnPeriod:
            out.append(PeriodColumn(flight.Period));
            break;
        case kColumnDepart:
            if (flight.LegCount > 0) out.append(ConvertTimeText((*flight.begin()).DepartTime, zone_, false));
            break;
        case kColumnArrive:
            out.append(ConvertTimeText(flight.LastLeg().ETA, zone_, false));
            break;
        case kColumnFlightType:
            out.append(flight.FlightType);
            break;
        case kColumnFlightLevel:
            out.append(flight.LastLeg().FlightLevel);
            break;
        case kColumnPercent:
            out.append(PercentColumn(flight.Percent));
            break;
        default:
            break;
    }
}

}  // namespace orlo
