#include <gtest/gtest.h>

#include "core/Path.h"
#include "core/Settings.h"
#include "shell/SettingsMirror.h"
#include "simulator/AircraftScan.h"
#include "simulator/Scenery.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::string_view kSettings = "SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Settings";

void Store(test::FakeProgram& fake, std::string_view name, std::string_view value) {
    fake.world.userSettings.Set(kSettings, name, value);
}

void ReadAll(test::FakeProgram& fake) {
    ReadSwitches(fake.context);
    ReadRecentLists(fake.context);
    ReadZones(fake.context);
    ReadWindowPlace(fake.context);
}

TEST(Settings, BooleansReadInBothForms) {
    const std::pair<const char*, bool> cases[] = {{"-1", true},     {"0", false}, {"True", true},
                                                  {"false", false}, {"1", true},  {"what", true}};
    for (const auto& [stored, read] : cases) {
        test::FakeProgram fake;
        Store(fake, "Undo", stored);
        ReadAll(fake);
        EXPECT_EQ(fake.session.switches.Undo, read) << stored;
        EXPECT_EQ(fake.form.mnuToolsUndoOn.checked, read) << stored;
    }
}

TEST(Settings, ATurnAroundThatIsNoneOfTheMenuIsOff) {
    test::FakeProgram fake;
    Store(fake, "TATime", "40");
    Store(fake, "MaxTATime", "3");
    ReadAll(fake);
    EXPECT_EQ(fake.session.switches.TATime, kNoTurnAroundLimit);
    EXPECT_EQ(fake.session.switches.MaxTATime, kNoTurnAroundLimit);
    EXPECT_TRUE(fake.form.mnuTAOff.checked && fake.form.mnuMaxTAOff.checked);
    EXPECT_FALSE(fake.form.mnuTA30.checked);
    WriteSettings(fake.context);
    EXPECT_EQ(fake.world.userSettings.Get(kSettings, "TATime"), "999999");
}

TEST(Settings, AChosenSimulatorTakesThePlaceOfTheMachinesAndForgetsItsAirports) {
    test::FakeProgram fake;
    const std::string cache = JoinPath("/program", kAFDCacheName);
    fake.world.machineSettings.Set(kSimulatorKeyPath, kSimulatorValue, " /machine ");
    ReadSimulatorFolder(fake.context);
    EXPECT_EQ(SimulatorFolder(fake.session, fake.world.machineSettings), "/machine");
    const struct {
        const char* chosen;
        const char* folder;
        bool airportsKept;
    } cases[] = {{"", "/machine", true},
                 {"/own", "/own", false},
                 {"/own", "/own", true},
                 {"/machine", "/machine", false}};
    for (const auto& c : cases) {
        fake.world.files.files[cache] = "cache";
        fake.session.scenery.Airports.resize(1);
        if (*c.chosen != 0) fake.world.windows.paths.push_back(c.chosen);
        fake.Press(fake.form.mnuToolsSimulatorFolder);
        EXPECT_EQ(SimulatorFolder(fake.session, fake.world.machineSettings), c.folder);
        EXPECT_EQ(fake.world.files.FileExists(cache), c.airportsKept) << c.chosen;
        EXPECT_EQ(fake.session.scenery.Airports.size(), c.airportsKept ? 1u : 0u) << c.chosen;
    }
    WriteSettings(fake.context);
    test::FakeProgram next;
    next.world.userSettings.values = fake.world.userSettings.values;
    ReadSimulatorFolder(next.context);
    EXPECT_EQ(next.session.SimulatorFolder, "/machine");
}

TEST(Settings, AMinimisedWindowComesBackNormal) {
    test::FakeProgram fake;
    fake.world.windows.keepsWindowPlace = true;
    Store(fake, "MainState", "1");
    Store(fake, "MainHeight", "500");
    Store(fake, "MainLeft", "20");
    fake.world.userSettings.written.clear();
    ReadAll(fake);
    EXPECT_EQ(fake.form.windowState, WindowState::Normal);
    EXPECT_FALSE(fake.form.centreRequest);
    EXPECT_EQ(fake.form.box.height, 500);
    EXPECT_EQ(fake.form.box.left, 20);

    fake.form.windowState = WindowState::Minimised;
    WriteSettings(fake.context);
    EXPECT_EQ(fake.world.userSettings.written[0], "MainState");
    EXPECT_EQ(fake.world.userSettings.written[1], "TATime") << "the place stored before is kept";

    test::FakeProgram first;
    first.world.windows.keepsWindowPlace = true;
    ReadAll(first);
    EXPECT_TRUE(first.form.centreRequest);
}

}  // namespace
}  // namespace orlo
