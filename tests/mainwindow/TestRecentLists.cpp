#include "mainwindow/RecentLists.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace orlo {
namespace {

TEST(RecentLists, PathsMoveAsTheyAreOpened) {
    using Paths = std::array<std::string, 5>;
    struct Case {
        Paths before;
        const char* path;
        Paths after;
    };
    const std::vector<Case> cases = {
        {{}, "/a", {"/a"}},
        {{"/1", "/2", "/3", "/4", "/5"}, "/6", {"/6", "/1", "/2", "/3", "/4"}},
        {{"/1", "/2", "/c", "/4", "/5"}, "/C", {"/C", "/1", "/2", "/4", "/5"}},  // in its new spelling
        {{"/a", "/2"}, "/A", {"/a", "/2"}},                                      // the top stays as it is
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.path);
        test::FakeProgram fake;
        fake.session.RecentFlightplans = c.before;
        AddRecentFlightplan(fake.context, c.path);
        EXPECT_EQ(fake.session.RecentFlightplans, c.after);
        EXPECT_EQ(fake.form.mnuRecentFlightPlan1.caption, c.after[0]);
        EXPECT_EQ(fake.form.mnuRecentFlightPlan5.visible, !c.after[4].empty());
        EXPECT_TRUE(fake.form.mnuRecentFlightPlan.enabled);
        EXPECT_FALSE(fake.form.mnuRecentProjects.enabled);
    }
}

}  // namespace
}  // namespace orlo
