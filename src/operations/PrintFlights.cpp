#include "operations/PrintFlights.h"

#include "core/Application.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/PrintedLeg.h"
#include "mainwindow/StatusTexts.h"
#include "simulator/MatchedAircraft.h"

namespace orlo {
namespace {

constexpr int kPrintStages = 3;
constexpr std::int32_t kFlightsBetweenPaints = 1000;

// Writes flights as they are printed.
class FlightPrinter {
  public:
    explicit FlightPrinter(const Session& session)
        : matched_(session.plan, session.fleet), positions_(session.plan) {}

    void Append(const FlightView& flight, std::string& text) const {
        AppendHead(flight, text);
        std::string_view from = flight.StartAirport();
        for (const LegView& leg : flight) {
            AppendPrintedLeg(text, positions_, from, leg);
            from = leg.Destination;
        }
        text.append(kPrintedLineEnd);
    }

  private:
    void AppendHead(const FlightView& flight, std::string& text) const {
        text.append(flight.ACNumber);
        const FSAircraft* entry = matched_.FindNoCase(flight.ACNumber);
        if (entry == nullptr) {
            text.append(" # NOT FOUND #");
        } else {
            text.append(Concat(" ", entry->Title));
            if (!entry->Airline.empty()) text.append(Concat(" (", entry->Airline, ")"));
        }
        text.append(Concat(" - ", flight.TailNumber, "/", flight.Percent, "/", flight.Period, "/",
                           flight.FlightType, kPrintedLineEnd));
    }

    MatchedAircraft matched_;
    PlanPositions positions_;
};

std::string PrintedResults(Context& context, const FlightPrinter& printer) {
    const ListView& list = context.forms.frmMain.lvExPreview;
    const FlightList& results = context.session.search.SearchResults;
    std::string text;
    for (std::int32_t position = 0; position < list.Count(); ++position) {
        const std::int32_t place = list.PlaceAt(position);
        if (place < results.Count()) printer.Append(results.At(place), text);
        if (position % kFlightsBetweenPaints != 0) continue;
        context.services.progress.SetValue(position);
        context.services.windows.ProcessEvents();
    }
    return text;
}

}  // namespace

void PrintFlights(Context& context) {
    Services& services = context.services;
    if (!services.windows.ShowPrintDialog("Export - Print")) return;
    ForgetNotWritten(context);
    const std::int32_t count = context.forms.frmMain.lvExPreview.Count();
    {
        BusyForm busy(context, context.forms.frmMain, kPrintStages);
        busy.Stage("Matching Aircraft...", 1);
        const FlightPrinter printer(context.session);
        busy.SetStages(count);
        busy.Stage("Printing...", 0);
        const PrintOutcome outcome = services.windows.Print(PrintedResults(context, printer));
        busy.CloseProgress();
        if (outcome == PrintOutcome::Failed) ReportNotPrinted(context);
        if (outcome != PrintOutcome::Printed) return;
    }
    ShowMessage(services.messages, Concat("Successfully printed ", count, " flights."), kMarkInformation,
                &context.forms.frmMain);
}

}  // namespace orlo
