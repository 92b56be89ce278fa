#include "shuffler/ShuffleEngine.h"

#include "core/Application.h"
#include "core/Text.h"
#include "shuffler/AircraftMatch.h"
#include "shuffler/ShuffleLog.h"
#include "shuffler/ShuffleResultLog.h"
#include "shuffler/ShuffleRun.h"
#include "simulator/Scenery.h"

namespace orlo {
namespace {

constexpr std::int32_t kFlightsBetweenProgress = 1001;

void ReportLevelError(Services& services, std::int32_t index) {
    ShowMessage(services.messages, Concat("Error (Flight ", index + 1, "):\nType mismatch"), kMarkCritical);
}

// Puts the flight at `index` into `flights` as the run decides it. False when it ends the run.
bool ShuffleFlight(const FlightList& plan, std::int32_t index, ShuffleRun& run, FlightList& flights,
                   ShuffleResult& result) {
    switch (run.Decide(plan.At(index))) {
        case ShuffleRun::Decision::Assigned:
            StoreFlight(run.TheFlight(), false, flights);
            ++result.assigned;
            return true;
        case ShuffleRun::Decision::Removed:
            flights.AppendFrom(plan, index);
            flights.SetRemoved(index, true);
            ++result.removed;
            return true;
        case ShuffleRun::Decision::LevelIsNoNumber:
            break;
    }
    return false;
}

// Rewrites session.Flights. The error of a flight is reported here.
ShuffleResult ShuffleFlights(Session& session, Services& services, ShuffleRun& run) {
    const FlightList& plan = session.Flights;
    FlightList flights;
    flights.Reserve(plan.Count());
    ShuffleResult result;
    result.succeeded = true;
    std::int32_t sinceProgress = 0;
    for (std::int32_t i = 0; i < plan.Count(); ++i) {
        if (!result.succeeded || plan.Removed(i)) {
            flights.AppendFrom(plan, i);
            continue;
        }
        if (++sinceProgress == kFlightsBetweenProgress) {
            sinceProgress = 0;
            services.progress.SetValue(i + 1);
            services.windows.ProcessEvents();
        }
        if (ShuffleFlight(plan, i, run, flights, result)) continue;
        ReportLevelError(services, i);
        result.succeeded = false;
        flights.AppendFrom(plan, i);
    }
    session.Flights = std::move(flights);
    return result;
}

}  // namespace

ShuffleResult ShuffleFlightplan(Session& session, Services& services, const std::string& flightplanPath) {
    services.progress.SetText("Getting FS2002 Scenery...");
    ReadScenery(session, services);
    services.progress.SetText("Matching Aircraft...");
    ResetRunAirlines(session);
    AirlineSet noAirlineSet =
        MakeNoAirlineSet(MatchAircraft(session.PlanAircrafts, session.FSAircrafts, session.RunAirlines));
    services.random.SeedFromClock();

    services.progress.SetText("Preparing Cache...");
    LogFile log;
    ShuffleRun run(session, noAirlineSet, services.random, log);
    if (session.DebugOn) OpenShuffleLog(log, services.files, flightplanPath);

    services.progress.SetText("Rearranging Flightplan...");
    services.progress.SetMax(session.FlightCount() + 1);
    const ShuffleResult result = ShuffleFlights(session, services, run);
    log.Close();
    if (result.succeeded && session.DebugOn) {
        WriteShuffleResultLog(services.files, flightplanPath, session.RunAirlines,
                              noAirlineSet.Airlines.front(), session.FSAircrafts);
    }
    services.progress.SetText("Cleaning Cache...");
    return result;
}

}  // namespace orlo
