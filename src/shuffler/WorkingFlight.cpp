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

void LendFields(const WorkingFlight& flight, LentFlight& lent) {
    lent.ACNumber = flight.ACNumber;
    lent.TailNumber = flight.TailNumber;
    lent.Percent = flight.Percent;
    lent.Period = flight.Period;
    lent.FlightType = flight.FlightType;
    lent.Legs.resize(static_cast<std::size_t>(flight.LegCount));
    for (std::int32_t i = 0; i < flight.LegCount; ++i) {
        const WorkingLeg& leg = flight.LegAt(i);
        lent.Legs[static_cast<std::size_t>(i)] = {leg.DepartTime,  leg.ETA,        leg.FixedETA,
                                                  leg.FlightLevel, leg.NumberMode, leg.FlightNumber,
                                                  leg.Destination};
    }
}

}  // namespace orlo
