#include "mainwindow/Resize.h"

#include <gtest/gtest.h>

#include <vector>

#include "mainwindow/WindowLimits.h"

namespace orlo {
namespace {

struct OneButton : Form {
    OneButton() : Form("frmOne", "One") { cmdOne.box = {101, 50, 80, 20}; }
    Button cmdOne{*this, "cmdOne", "One"};
};

TEST(Resize, EdgesFollowTheirModes) {
    using enum EdgeMode;
    // Modes of top, left, bottom and right.
    constexpr EdgeModes kAllFar = {FollowsFarEdge, FollowsFarEdge, FollowsFarEdge, FollowsFarEdge};
    constexpr EdgeModes kGrows = {Stays, Stays, FollowsFarEdge, FollowsFarEdge};
    constexpr EdgeModes kCentred = {FollowsFarEdge, FollowsMiddle, FollowsFarEdge, FollowsMiddle};
    constexpr EdgeModes kHalf = {FollowsMiddle, FollowsMiddle, Stays, Stays};
    constexpr EdgeModes kLeftMiddle = {Stays, FollowsMiddle, Stays, Stays};
    constexpr EdgeModes kRightMiddle = {Stays, Stays, Stays, FollowsMiddle};
    struct Case {
        const char* name;
        EdgeModes modes;
        EdgeUnit unit;
        std::int32_t height, width;
        ControlBox expected;  // left, top, width, height
    };
    using enum EdgeUnit;
    const std::vector<Case> cases = {
        {"the registered size restores the place", kCentred, Offset, 400, 600, {101, 50, 80, 20}},
        {"the top left corner stays, the size grows", kGrows, Offset, 500, 700, {101, 50, 180, 120}},
        {"moves with the bottom right corner", kAllFar, Offset, 500, 650, {151, 150, 80, 20}},
        {"stays at the bottom, centred", kCentred, Offset, 500, 700, {151, 150, 80, 20}},
        {"half a pixel goes to the even one", kLeftMiddle, Offset, 400, 603, {102, 50, 80, 20}},
        {"rounded after its left edge is taken off", kRightMiddle, Offset, 400, 601, {101, 50, 80, 20}},
        {"scales with the window", kAllFar, Scale, 800, 1200, {202, 100, 160, 40}},
        {"scales by half", kHalf, Scale, 800, 1200, {152, 75, 80, 20}},
        {"all edges stay", {}, Scale, 800, 1200, {101, 50, 80, 20}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        OneButton form;
        cResize layout;
        layout.SetFormHeight(400);
        layout.SetFormWidth(600);
        layout.Add(form.cmdOne, c.modes, c.unit);
        layout.Resize(4000, 6000);
        layout.Resize(c.height, c.width);
        if (c.modes.bottom == Stays) form.cmdOne.box.height = c.expected.height;
        EXPECT_EQ(form.cmdOne.box, c.expected);
    }
}

TEST(WindowLimits, TheTwentyFirstWindowIsNotRegistered) {
    WindowLimitTable table;
    std::vector<std::unique_ptr<OneButton>> forms;
    for (int i = 0; i < 21; ++i) {
        forms.push_back(std::make_unique<OneButton>());
        table.AddWindowLimits(*forms.back(), kMainWindowLimits);
    }
    EXPECT_EQ(forms[19]->limits, kMainWindowLimits);
    EXPECT_FALSE(forms[20]->limits);
    table.RemoveWindowLimits(*forms[3]);
    EXPECT_FALSE(forms[3]->limits);
    table.AddWindowLimits(*forms[20], kMainWindowLimits);
    EXPECT_TRUE(forms[20]->limits);
}

}  // namespace
}  // namespace orlo
