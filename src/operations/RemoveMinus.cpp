#include "operations/RemoveMinus.h"

#include "core/Text.h"
#include "operations/PlanCorrection.h"

namespace orlo {
namespace {

// The flight at `index` of the plan with another tail number, which is no longer than its own.
void StoreTailNumber(const FlightList& plan, std::int32_t index, std::string_view tailNumber,
                     FlightList& flights) {
    FlightView flight = plan.At(index);
    flight.TailNumber = tailNumber;
    flights.BeginRow(plan.Row(index).size() + 1);
    flights.AddFlightFields(flight);
    for (const LegView& leg : flight) flights.AddLegFields(leg);
    flights.EndRow(flight.LegCount, flight.Removed);
}

void RemoveMinusOfPlan(Context& context) {
    RemoveMinusFromTailNumbers(context.session);
}

}  // namespace

void RemoveMinusFromTailNumbers(Session& session) {
    const FlightList& plan = session.Flights;
    FlightList flights;
    flights.Reserve(plan.Count());
    for (std::int32_t i = 0; i < plan.Count(); ++i) {
        const std::string_view tailNumber = plan.At(i).TailNumber;
        if (tailNumber.find('-') == std::string_view::npos) {
            flights.AppendFrom(plan, i);
        } else {
            StoreTailNumber(plan, i, RemoveAll(tailNumber, '-'), flights);
        }
    }
    session.Flights = std::move(flights);
}

void OnRemoveMinusFromTailNumbers(Context& context) {
    RunPlanCorrection(context, RemoveMinusOfPlan, "Successfully removed all '-' chars.");
}

}  // namespace orlo
