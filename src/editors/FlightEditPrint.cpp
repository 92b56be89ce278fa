#include "editors/FlightEditPrint.h"

#include "core/Text.h"
#include "editors/FlightEditTimes.h"
#include "mainwindow/PrintedLeg.h"
#include "mainwindow/ReportWindow.h"

namespace orlo {
namespace {

std::string PrintedFlight(const FlightEditForm& form, const Session& session) {
    const Flight& flight = form.WorkingFlight;
    const PlanPositions positions(session.plan);
    std::string text = Concat(form.cmAircraft.Text(), " - ", flight.TailNumber, "/", flight.Percent, "/",
                              flight.Period, "/", flight.FlightType, kPrintedLineEnd);
    for (std::int32_t place = 0; place < flight.LegCount(); ++place) {
        const Leg& leg = flight.Legs[static_cast<std::size_t>(place)];
        AppendPrintedLeg(text, positions, LegStart(flight, place), ViewOf(leg));
    }
    return text.append(kPrintedLineEnd);
}

}  // namespace

void PrintFlightEdit(Context& context) {
    AskAndPrint(context, "Flight Editor - Print",
                PrintedFlight(context.forms.frmFlightEdit, context.session));
}

}  // namespace orlo
