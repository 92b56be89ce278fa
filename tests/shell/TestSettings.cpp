#include <gtest/gtest.h>

#include "core/Path.h"
#include "core/Settings.h"
#include "shell/SettingsMirror.h"
#include "simulator/AircraftScan.h"
#include "simulator/Scenery.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::string_view kTree = "SOFTWARE\\BRANTEL DATA SERVICE\\ORLO\\1.0\\";

void Store(test::FakeProgram& fake, std::string_view section, std::string_view name, std::string_view value) {
    fake.world.userSettings.values[UpperText(Concat(kTree, section, "\\", name))] = value;
}

void ReadAll(test::FakeProgram& fake) {
    ReadSwitches(fake.context);
    ReadRecentLists(fake.context);
    ReadZones(fake.context);
    ReadWindowPlace(fake.context);
}

TEST(Settings, BooleansReadInBothForms) {
    struct Case {
        const char* stored;
        bool read;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"-1", true}, {"0", false}, {"True", true}, {"false", false}, {"1", true}, {"what", true}}) {
        test::FakeProgram fake;
        Store(fake, "Settings", "Undo", c.stored);
        ReadAll(fake);
        EXPECT_EQ(fake.session.switches.Undo, c.read) << c.stored;
        EXPECT_EQ(fake.form.mnuToolsUndoOn.checked, c.read) << c.stored;
    }
}

TEST(Settings, ATurnAroundThatIsNoneOfTheMenuIsOff) {
    test::FakeProgram fake;
    Store(fake, "Settings", "TATime", "40");
    Store(fake, "Settings", "MaxTATime", "3");
    ReadAll(fake);
    EXPECT_EQ(fake.session.switches.TATime, kNoTurnAroundLimit);
    EXPECT_EQ(fake.session.switches.MaxTATime, kNoTurnAroundLimit);
    EXPECT_TRUE(fake.form.mnuTAOff.checked && fake.form.mnuMaxTAOff.checked);
    EXPECT_FALSE(fake.form.mnuTA30.checked);
    WriteSettings(fake.context);
    EXPECT_EQ(fake.world.userSettings.Get("SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Settings", "TATime"),
              "999999");
}

TEST(Settings, AChosenSimulatorTakesThePlaceOfTheMachinesAndForgetsItsAirports) {
    test::FakeProgram fake;
    const std::string cache = JoinPath("/program", kAFDCacheName);
    fake.world.machineSettings.Set(kSimulatorKeyPath, kSimulatorValue, " /machine ");
    ReadSimulatorFolder(fake.context);
    EXPECT_EQ(SimulatorFolder(fake.session, fake.world.machineSettings), "/machine");
    struct Case {
        const char* chosen;
        const char* folder;
        bool airportsKept;
    };
    for (const Case& c : std::initializer_list<Case>{{"", "/machine", true},
                                                     {"/own", "/own", false},
                                                     {"/own", "/own", true},
                                                     {"/machine", "/machine", false}}) {
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
    Store(fake, "Settings", "MainState", "1");
    Store(fake, "Settings", "MainHeight", "500");
    Store(fake, "Settings", "MainLeft", "20");
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
