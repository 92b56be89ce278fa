#include "shuffler/WorkingFlight.h"

namespace orlo {

void LoadFlight(const FlightView& row, WorkingFlight& flight) {
    flight.ACNumber = row.ACNumber;
    flight.TailNumber = row.TailNumber;
    flight.Percent = row.Percent;
    flight.Period = row.Period;
    flight.FlightType = row.FlightType;
    flight.LegCount = row.LegCount;
    if (flight.Legs.size() < static_cast<std::size_t>(row.LegCount)) {
        flight.Legs.resize(static_cast<std::size_t>(row.LegCount));
    }
    std::int32_t index = 0;
    for (const LegView& view : row) {
        WorkingLeg& leg = flight.LegAt(index++);
        leg.DepartTime = view.DepartTime;
        leg.ETA = view.ETA;
        leg.FixedETA = view.FixedETA;
        leg.FlightLevel = view.FlightLevel;
        leg.NumberMode = view.NumberMode;
        leg.FlightNumber = view.FlightNumber;
        leg.Destination = view.Destination;
    }
}

void StoreFlight(const WorkingFlight& flight, bool removed, FlightList& flights) {
    std::size_t size = kFlightFields + flight.ACNumber.size() + flight.TailNumber.size() +
                       flight.Percent.size() + flight.Period.size() + flight.FlightType.size();
    for (std::int32_t i = 0; i < flight.LegCount; ++i) {
        const WorkingLeg& leg = flight.LegAt(i);
        size += kLegFields + leg.DepartTime.size() + leg.ETA.size() + 1 + leg.FlightLevel.size() +
                leg.NumberMode.size() + leg.FlightNumber.size() + leg.Destination.size();
    }
    flights.BeginRow(size);
    flights.AddFlightFields(
        {flight.ACNumber, flight.TailNumber, flight.Percent, flight.Period, flight.FlightType, 0, false, {}});
    for (std::int32_t i = 0; i < flight.LegCount; ++i) {
        const WorkingLeg& leg = flight.LegAt(i);
        flights.AddLegFields({leg.DepartTime, leg.ETA, leg.FixedETA, leg.FlightLevel, leg.NumberMode,
                              leg.FlightNumber, leg.Destination});
    }
    flights.EndRow(flight.LegCount, removed);
}

}  // namespace orlo
