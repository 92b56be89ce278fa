#include "core/FlightView.h"

namespace orlo {
namespace {

void ReadNextLeg(RowReader& reader, LegView& leg) {
    leg.DepartTime = reader.Next();
    leg.ETA = reader.Next();
    leg.FixedETA = !leg.ETA.empty() && leg.ETA.front() == kFixedMark;
    if (leg.FixedETA) leg.ETA.remove_prefix(1);
    leg.FlightLevel = reader.Next();
    leg.NumberMode = reader.Next();
    leg.FlightNumber = reader.Next();
    leg.Destination = reader.Next();
}

}  // namespace

void FlightView::LegIterator::ReadLeg() {
    ReadNextLeg(reader_, leg_);
}

std::string_view FlightView::StartAirport() const {
    if (LegCount == 0) return {};
    const std::size_t last = LegText.rfind(kRowSeparator);
    return last == std::string_view::npos ? LegText : LegText.substr(last + 1);
}

LegView FlightView::LastLeg() const {
    if (LegCount == 0) return {};
    std::size_t start = LegText.size();
    for (int field = 0; field < kLegFields && start != std::string_view::npos; ++field) {
        start = start == 0 ? std::string_view::npos : LegText.rfind(kRowSeparator, start - 1);
    }
    RowReader reader(start == std::string_view::npos ? LegText : LegText.substr(start + 1));
    LegView leg;
    ReadNextLeg(reader, leg);
    return leg;
}

LentFlight::LentFlight(const Flight& flight)
    : ACNumber(flight.ACNumber),
      TailNumber(flight.TailNumber),
      Percent(flight.Percent),
      Period(flight.Period),
      FlightType(flight.FlightType) {
    Legs.reserve(flight.Legs.size());
    for (const Leg& leg : flight.Legs) Legs.push_back(ViewOf(leg));
}

LentFlight& LentFlight::operator=(const FlightView& flight) {
    ACNumber = flight.ACNumber;
    TailNumber = flight.TailNumber;
    Percent = flight.Percent;
    Period = flight.Period;
    FlightType = flight.FlightType;
    Legs.resize(static_cast<std::size_t>(flight.LegCount));
    RowReader reader(flight.LegText);
    for (LegView& leg : Legs) ReadNextLeg(reader, leg);
    return *this;
}

}  // namespace orlo
