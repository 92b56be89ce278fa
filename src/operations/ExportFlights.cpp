#include "operations/ExportFlights.h"

#include <vector>

#include "core/Application.h"
#include "core/FlightplanFile.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {
namespace {

void WriteExport(Context& context, const std::string& path, const FlightList& flights) {
    FileSystem& files = context.services.files;
    ForgetNotWritten(context);
    const bool kept = KeepWhatGoes(context, context.session.plan.Known, "Export", RemovedFlightsPath(path)) &&
                      (!context.session.switches.BackupPlan || BackUpOrKeep(context, "Export", path));
    ReportPlanNotWritten(context, path, kept ? WriteFlightplan(files, path, flights) : PlanWriteResult());
}

void SayExported(Context& context, std::int32_t count) {
    ShowMessage(context.services.messages, Concat("Successfully exported ", count, " flights."),
                kMarkInformation, &context.forms.frmMain);
}

std::int32_t CountKept(const Session& session) {
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < session.search.SearchResultCount; ++i) {
        if (!session.search.SearchResults.Removed(i)) ++count;
    }
    return count;
}

FlightList Remainder(const Session& session) {
    std::vector<std::int32_t> rest;
    std::size_t next = 0;
    const auto resultCount = static_cast<std::size_t>(session.search.SearchResultCount);
    for (std::int32_t place = 0; place < session.plan.FlightCount(); ++place) {
        if (next < resultCount && session.search.SearchResultIndex[next] == place) {
            ++next;
        } else {
            rest.push_back(place);
        }
    }
    return session.plan.Flights.Selection(rest);
}

}  // namespace

void ExportFlights(Context& context) {
    const std::string path = AskForSavePath(context, "Export - Save Flightplan", "Export FlightPlans.txt");
    if (path.empty()) return;
    {
        const BusyForm busy(context, context.forms.frmMain);
        WriteExport(context, path, context.session.search.SearchResults);
    }
    SayExported(context, CountKept(context.session));
}

void ExportRemainder(Context& context) {
    const std::string path =
        AskForSavePath(context, "Export remaining flights - Save Flightplan", "Remaining FlightPlans.txt");
    if (path.empty()) return;
    {
        const BusyForm busy(context, context.forms.frmMain);
        WriteExport(context, path, Remainder(context.session));
    }
    SayExported(context, context.session.plan.FlightCount() - context.session.search.SearchResultCount);
}

}  // namespace orlo
