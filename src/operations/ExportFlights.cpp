#include "operations/ExportFlights.h"

#include "core/Application.h"
#include "core/FlightplanFile.h"
#include "core/Text.h"
#include "mainwindow/BulkOperation.h"
#include "mainwindow/SavePlan.h"

namespace orlo {
namespace {

// Empty on cancel.
std::string AskForExportPath(Context& context, std::string_view title, std::string_view startFile) {
    FileDialog dialog;
    dialog.title = title;
    dialog.startFile = startFile;
    dialog.filter = kTextFileFilter;
    dialog.overwritePrompt = true;
    const std::string path = context.services.windows.ShowSaveDialog(dialog);
    return path.empty() ? path : context.services.files.FullPath(path);
}

void WriteExport(Context& context, const std::string& path, const FlightList& flights) {
    ForgetNotWritten(context);
    const PlanWriteResult written =
        WriteFlightplan(context.services.files, path, flights, context.session.BackupPlan);
    ReportPlanNotWritten(context, path, written);
}

void SayExported(Context& context, std::int32_t count) {
    ShowMessage(context.services.messages, Concat("Successfully exported ", count, " flights."),
                kMarkInformation, &context.forms.frmMain);
}

std::int32_t CountKept(const Session& session) {
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < session.SearchResultCount; ++i) {
        if (!session.SearchResults.Removed(i)) ++count;
    }
    return count;
}

FlightList Remainder(const Session& session) {
    FlightList rest = FlightList::SharingRowsOf(session.Flights);
    std::size_t next = 0;
    const auto resultCount = static_cast<std::size_t>(session.SearchResultCount);
    for (std::int32_t place = 0; place < session.FlightCount(); ++place) {
        if (next < resultCount && session.SearchResultIndex[next] == place) {
            ++next;
        } else {
            rest.AppendFrom(session.Flights, place);
        }
    }
    return rest;
}

}  // namespace

void ExportFlights(Context& context) {
    const std::string path = AskForExportPath(context, "Export - Save Flightplan", "Export FlightPlans.txt");
    if (path.empty()) return;
    {
        const BusyMainWindow busy(context);
        WriteExport(context, path, context.session.SearchResults);
    }
    SayExported(context, CountKept(context.session));
}

void ExportRemainder(Context& context) {
    const std::string path =
        AskForExportPath(context, "Export remaining flights - Save Flightplan", "Remaining FlightPlans.txt");
    if (path.empty()) return;
    {
        const BusyMainWindow busy(context);
        WriteExport(context, path, Remainder(context.session));
    }
    SayExported(context, context.session.FlightCount() - context.session.SearchResultCount);
}

}  // namespace orlo
