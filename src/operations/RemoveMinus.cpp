#include "operations/RemoveMinus.h"

#include "core/Text.h"
#include "operations/PlanCorrection.h"

namespace orlo {
namespace {

void RemoveMinusOfPlan(Context& context) {
    RemoveMinusFromTailNumbers(context.session.plan);
}

}  // namespace

void RemoveMinusFromTailNumbers(Plan& plan) {
    std::string tailNumber;
    plan.Flights.Rewrite([&](std::int32_t, const FlightView& flight, LentFlight& changed) {
        if (flight.TailNumber.find('-') == std::string_view::npos) return false;
        tailNumber = RemoveAll(flight.TailNumber, '-');
        changed = flight;
        changed.TailNumber = tailNumber;
        return true;
    });
}

void OnRemoveMinusFromTailNumbers(Context& context) {
    RunPlanCorrection(context, RemoveMinusOfPlan, "Successfully removed all '-' chars.");
}

}  // namespace orlo
