#include "operations/RemoveMinus.h"

#include <string>

#include "core/Text.h"
#include "mainwindow/PlanChange.h"

namespace orlo {

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
    PlanChange change;
    change.work = [&](BusyForm&) -> std::string {
        RemoveMinusFromTailNumbers(context.session.plan);
        return "Successfully removed all '-' chars.";
    };
    ChangePlan(context, context.forms.frmMain, change);
}

}  // namespace orlo
