// The end by the system, where there is nothing to keep and where keeping fails. tests/scripts/end-by-signal
// tells the rest.

#include <gtest/gtest.h>

#include "shell/SystemEnd.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

TEST(SystemEnd, KeepsOnlyChangesAndStoresTheSettingsInAnyCase) {
    for (const bool changed : {false, true}) {
        test::FakeProgram program;
        program.session.plan.PlanModified = changed;
        if (changed) program.session.StateFolder.clear();
        program.session.RecentFlightplans[0] = "/w/One.txt";
        EXPECT_EQ(EndBySystem(program.context), !changed);
        EXPECT_TRUE(program.world.files.files.empty());
        EXPECT_FALSE(program.world.userSettings.written.empty());
    }
}

}  // namespace
}  // namespace orlo
