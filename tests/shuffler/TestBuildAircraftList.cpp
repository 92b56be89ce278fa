#include "shuffler/BuildAircraftList.h"

#include <gtest/gtest.h>

namespace orlo {
namespace {

TEST(BuildAircraftList, CheckedAircraftAreNumberedFromTheStartNumber) {
    Session session;
    session.PlanAircrafts.push_back({"AC#900", "Old", "1", 5});
    session.FSAircrafts.resize(4);
    session.FSAircrafts[0].CruiseSpeed = 100;
    session.FSAircrafts[2].CruiseSpeed = 102;
    session.StartNumber = 41;

    BuildAircraftList(std::vector<CheckedAircraft>{{2, "Jet (large)"}, {0, "Prop"}}, session);
    EXPECT_EQ(session.PlanAircrafts,
              (std::vector<PlanAircraft>{{"AC#41", "Jet (large)", "102", 0}, {"AC#42", "Prop", "100", 0}}));
    EXPECT_EQ(session.MaxACNumber, 42);
    EXPECT_EQ(NextStartNumber(session), 43);
    session.PlanAircrafts = {{"AC#7", "", "", 0}, {"AC#2147483647", "", "", 0}, {"odd", "", "", 0}};
    EXPECT_EQ(NextStartNumber(session), 2147483647);
}

}  // namespace
}  // namespace orlo
