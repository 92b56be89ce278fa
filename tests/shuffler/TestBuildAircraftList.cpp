#include "shuffler/BuildAircraftList.h"

#include <gtest/gtest.h>

namespace orlo {
namespace {

TEST(BuildAircraftList, CheckedAircraftAreNumberedFromTheStartNumber) {
    Session session;
    session.plan.PlanAircrafts.push_back({"AC#900", "Old", "1", 5});
    session.fleet.FSAircrafts.resize(4);
    session.fleet.FSAircrafts[0].CruiseSpeed = 100;
    session.fleet.FSAircrafts[2].CruiseSpeed = 102;
    session.switches.StartNumber = 41;

    BuildAircraftList(std::vector<CheckedAircraft>{{2, "Jet (large)"}, {0, "Prop"}}, session.fleet,
                      session.switches.StartNumber, session.plan);
    EXPECT_EQ(session.plan.PlanAircrafts,
              (std::vector<PlanAircraft>{{"AC#41", "Jet (large)", "102", 0}, {"AC#42", "Prop", "100", 0}}));
    EXPECT_EQ(session.plan.MaxACNumber, 42);
    EXPECT_EQ(NextStartNumber(session.plan), 43);
    session.plan.PlanAircrafts = {{"AC#7", "", "", 0}, {"AC#2147483647", "", "", 0}, {"odd", "", "", 0}};
    EXPECT_EQ(NextStartNumber(session.plan), 2147483647);
}

}  // namespace
}  // namespace orlo
