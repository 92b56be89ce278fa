#include "operations/PlanCorrection.h"

#include "mainwindow/BulkOperation.h"
#include "mainwindow/PlanViews.h"

namespace orlo {

void AddFlightFields(const FlightView& flight, FlightList& flights) {
    flights.AddField(flight.ACNumber);
    flights.AddField(flight.TailNumber);
    flights.AddField(flight.Percent);
    flights.AddField(flight.Period);
    flights.AddField(flight.FlightType);
}

void AddLegFields(const LegView& leg, FlightList& flights) {
    flights.AddField(leg.DepartTime);
    flights.AddArrival(leg.ETA, leg.FixedETA);
    flights.AddField(leg.FlightLevel);
    flights.AddField(leg.NumberMode);
    flights.AddField(leg.FlightNumber);
    flights.AddField(leg.Destination);
}

void RunPlanCorrection(Context& context, void (*correct)(Context&), std::string_view done) {
    {
        const BusyMainWindow busy(context);
        TakeUndoSnapshot(context);
        correct(context);
        ResetTimetableView(context);
        ResetExportView(context);
        MarkPlanModified(context);
    }
    ShowMessage(context.services.messages, done, kMarkInformation, &context.forms.frmMain);
}

}  // namespace orlo
