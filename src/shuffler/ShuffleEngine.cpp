#include "shuffler/ShuffleEngine.h"

#include <vector>

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

// Rewrites session.plan.Flights. A level that is no number is reported here.
ShuffleResult ShuffleFlights(Session& session, Services& services, ShuffleRun& run) {
    ShuffleResult result;
    result.succeeded = true;
    std::vector<std::int32_t> removed;
    std::int32_t sinceProgress = 0;
    session.plan.Flights.Rewrite([&](std::int32_t index, const FlightView& flight, LentFlight& changed) {
        if (!result.succeeded || flight.Removed) return false;
        if (++sinceProgress == kFlightsBetweenProgress) {
            sinceProgress = 0;
            services.progress.SetValue(index + 1);
            services.windows.ProcessEvents();
        }
        switch (run.Decide(flight)) {
            case ShuffleRun::Decision::Assigned:
                LendFields(run.TheFlight(), changed);
                ++result.assigned;
                return true;
            case ShuffleRun::Decision::Removed:
                removed.push_back(index);
                return false;
            case ShuffleRun::Decision::LevelIsNoNumber:
                ReportLevelError(services, index);
                result.succeeded = false;
                return false;
        }
        return false;
    });
    for (const std::int32_t index : removed) session.plan.Flights.SetRemoved(index, true);
    result.removed = static_cast<std::int32_t>(removed.size());
    return result;
}

}  // namespace

ShuffleResult ShuffleFlightplan(Session& session, Services& services, const std::string& flightplanPath) {
    services.progress.SetText("Getting FS2002 Scenery...");
    ReadScenery(session, services);
    services.progress.SetText("Matching Aircraft...");
    session.shuffle.HasResult = false;
    ResetRunAirlines(session);
    AirlineSet noAirlineSet = MakeNoAirlineSet(
        MatchAircraft(session.plan.PlanAircrafts, session.fleet.FSAircrafts, session.shuffle.RunAirlines));
    services.random.SeedFromClock();

    services.progress.SetText("Preparing Cache...");
    LineFile log;
    ShuffleRun run(session, noAirlineSet, services.random, log);
    if (session.switches.DebugOn) OpenShuffleLog(log, services.files, flightplanPath);

    services.progress.SetText("Rearranging Flightplan...");
    services.progress.SetMax(session.plan.FlightCount() + 1);
    const ShuffleResult result = ShuffleFlights(session, services, run);
    log.Close();
    session.shuffle.NoAirlineFlights = noAirlineSet.Airlines.front().Flights;
    session.shuffle.HasResult = result.succeeded;
    if (result.succeeded && session.switches.DebugOn) {
        WriteShuffleResultLog(services.files, flightplanPath, session.shuffle.RunAirlines,
                              noAirlineSet.Airlines.front(), session.fleet.FSAircrafts);
    }
    services.progress.SetText("Cleaning Cache...");
    return result;
}

}  // namespace orlo
