#include "mainwindow/KeepInMemory.h"

#include <string>
#include <vector>

#include "core/FlightplanFile.h"
#include "core/PlanSideFiles.h"
#include "mainwindow/KeepAside.h"

namespace orlo {

bool KeepPlanInMemory(Context& context, std::string_view reason) {
    const Plan& plan = context.session.plan;
    FileSystem& files = context.services.files;
    const std::string flights = FormatFlights(plan.Flights, false);
    const std::string aircraft = FormatPlanAircraft(plan);
    const std::string removed = FormatFlights(plan.Flights, true);
    std::vector<KeptText> texts = {{files.FullPath(plan.FlightplanPath), flights},
                                   {files.FullPath(PlanAircraftPath(plan)), aircraft}};
    if (!removed.empty()) texts.push_back({files.FullPath(RemovedFlightsPath(plan.FlightplanPath)), removed});
    return KeepAside(context, reason, texts);
}

}  // namespace orlo
