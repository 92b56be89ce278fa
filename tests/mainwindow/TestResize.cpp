#include "mainwindow/Resize.h"

#include <gtest/gtest.h>

#include <vector>

#include "mainwindow/WindowLimits.h"

namespace orlo {
namespace {

struct OneButton : Form {
    OneButton() : Form("frmOne", "One") { cmdOne.box = {100, 50, 80, 20}; }
    Button cmdOne{*this, "cmdOne", "One"};
};

TEST(Resize, EdgesFollowTheirModes) {
    using enum EdgeMode;
    struct Case {
        const char* name;
        EdgeModes modes;
        EdgeUnit unit;
        std::int32_t height;
        std::int32_t width;
        ControlBox expected;  // left, top, width, height
    };
    const std::vector<Case> cases = {
        {"the registered size restores the place",
         {FollowsFarEdge, FollowsMiddle, FollowsFarEdge, FollowsMiddle},
         EdgeUnit::Offset,
         400,
         600,
         {100, 50, 80, 20}},
        {"the top left corner stays, the size grows",
         {Stays, Stays, FollowsFarEdge, FollowsFarEdge},
         EdgeUnit::Offset,
         500,
         700,
         {100, 50, 180, 120}},
        {"moves with the bottom right corner",
         {FollowsFarEdge, FollowsFarEdge, FollowsFarEdge, FollowsFarEdge},
         EdgeUnit::Offset,
         500,
         650,
         {150, 150, 80, 20}},
        {"stays at the bottom, centred",
         {FollowsFarEdge, FollowsMiddle, FollowsFarEdge, FollowsMiddle},
         EdgeUnit::Offset,
         500,
         700,
         {150, 150, 80, 20}},
        {"half a pixel goes to the even one",
         {Stays, FollowsMiddle, Stays, Stays},
         EdgeUnit::Offset,
         400,
         603,
         {102, 50, 80, 20}},
        {"a width is rounded after its left edge is taken off",
         {Stays, Stays, Stays, FollowsMiddle},
         EdgeUnit::Offset,
         400,
         601,
         {100, 50, 80, 20}},
        {"scales with the window",
         {FollowsFarEdge, FollowsFarEdge, FollowsFarEdge, FollowsFarEdge},
         EdgeUnit::Scale,
         800,
         1200,
         {200, 100, 160, 40}},
        {"scales by half",
         {FollowsMiddle, FollowsMiddle, Stays, Stays},
         EdgeUnit::Scale,
         800,
         1200,
         {150, 75, 80, 20}},
        {"all edges stay", {}, EdgeUnit::Scale, 800, 1200, {100, 50, 80, 20}},
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

TEST(Resize, EveryControlOfTheMainWindowThatFollowsIsRegisteredOnce) {
    MainForm form;
    for (Control* control : form.Controls()) control->box = {10, 10, 10, 10};
    cResize layout;
    RegisterMainLayout(layout, form, 400, 550);
    layout.Resize(500, 650);
    EXPECT_EQ(form.tvShuffleAircraft.box, (ControlBox{10, 10, 110, 110}));
    EXPECT_EQ(form.cmdShuffle.box, (ControlBox{60, 110, 10, 10}));
    EXPECT_EQ(form.cmdPreview.box, (ControlBox{110, 110, 10, 10}));
    EXPECT_EQ(form.cmExZone.box.left, 110);
    EXPECT_EQ(form.frProject.box, (ControlBox{10, 110, 110, 10}));
    EXPECT_EQ(form.ckTTIFR.box, (ControlBox{10, 10, 10, 10})) << "not one of those that follow";
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
