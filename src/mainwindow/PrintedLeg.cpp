#include "mainwindow/PrintedLeg.h"

#include "core/Text.h"

namespace orlo {

void AppendPrintedLeg(std::string& text, const PlanPositions& positions, std::string_view from,
                      const LegView& leg) {
    text.append(Concat("\t\t", from, " - ", leg.Destination, " No. ", leg.FlightNumber, " FL",
                       leg.FlightLevel, " ", positions.Distance(from, leg.Destination), "nm ", leg.DepartTime,
                       " ", leg.ETA, kPrintedLineEnd));
}

}  // namespace orlo
