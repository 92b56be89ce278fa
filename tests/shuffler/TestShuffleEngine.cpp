#include <gtest/gtest.h>

#include "shuffler/ShuffleWorld.h"

namespace orlo::test {
namespace {

// A world of one airline's set and many flights that all start there.
struct OneAirline : ShuffleWorld {
    explicit OneAirline(int flights) {
        for (std::string_view code : {"ONE1", "ONE2"}) AddAirport(code, "N", "One");
        session.rules.Airlines.Airports = {MakeSet("ONE1", {{"A"}})};
        for (int i = 0; i < flights; ++i) AddFlight({"ONE2", "ONE1"});
    }
};

TEST(ShuffleEngine, ALevelThatIsNoNumberEndsTheRunAndKeepsWhatWasDecided) {
    for (std::string_view level : {"", "FL100", "99999999999"}) {
        SCOPED_TRACE(level);
        OneAirline made(1);
        made.session.switches.DebugOn = true;
        made.AddAircraft("T1", "A");
        made.AddFlight({"ONE2", "NONE"});
        made.AddFlight({"ONE2", "ONE1"}, level);
        made.AddFlight({"ONE2", "NONE"});
        made.session.plan.Flights.SetRemoved(1, true);  // left as it is
        const ShuffleResult result = made.Shuffle();
        EXPECT_FALSE(result.succeeded);
        EXPECT_EQ(result.assigned, 1);
        EXPECT_EQ(made.Aircraft(), "AC#1 - AC#99 AC#99 ");
        EXPECT_EQ(
            made.world.messages.shown,
            (std::vector{std::pair(int{kMarkCritical}, std::string("Error (Flight 3):\nType mismatch"))}));
        EXPECT_TRUE(made.world.files.FileExists("/plan/Shuffle.log"));
        EXPECT_FALSE(made.world.files.FileExists("/plan/Shuffle Result.log"));
    }
}

TEST(ShuffleEngine, EventsRunOnceInAThousandAndOneFlights) {
    OneAirline made(2500);
    made.Shuffle();
    EXPECT_EQ(made.world.windows.eventsProcessed, 2);
    EXPECT_EQ(made.world.progress.lines,
              (std::vector<std::string>{"text Getting FS2002 Scenery...", "text Matching Aircraft...",
                                        "text Preparing Cache...", "text Rearranging Flightplan...",
                                        "max 2501", "value 1001", "value 2002", "text Cleaning Cache..."}));
}

}  // namespace
}  // namespace orlo::test
