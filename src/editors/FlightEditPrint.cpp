#include "editors/FlightEditPrint.h"

#include "core/Text.h"
#include "editors/FlightEditTimes.h"

namespace orlo {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string PrintedFlight(const FlightEditForm& form, const Session& session) {
    const Flight& flight = form.WorkingFlight;
    const PlanPositions positions(session);
    std::string text = Concat(form.cmAircraft.Text(), " - ", flight.TailNumber, "/", flight.Percent, "/",
                              flight.Period, "/", flight.FlightType, kLineEnd);
    for (std::int32_t place = 0; place < flight.LegCount(); ++place) {
        const Leg& leg = flight.Legs[static_cast<std::size_t>(place)];
        const std::string& from = LegStart(flight, place);
        text += Concat("\t\t", from, " - ", leg.Destination, " No. ", leg.FlightNumber, " FL",
                       leg.FlightLevel, " ", positions.Distance(from, leg.Destination), "nm ", leg.DepartTime,
                       " ", leg.ETA, kLineEnd);
    }
    return text.append(kLineEnd);
}

}  // namespace

void PrintFlightEdit(Context& context) {
    WindowHost& windows = context.services.windows;
    if (!windows.ShowPrintDialog("Flight Editor - Print")) return;
    windows.Print(PrintedFlight(context.forms.frmFlightEdit, context.session));
}

}  // namespace orlo
