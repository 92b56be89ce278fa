// The main job on a world of real traffic, where one lies beside the checkout: opened, shuffled with the
// default rules and saved, and flights of it held against a plain reading of the shuffle's rules.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/FlightplanFile.h"
#include "core/Settings.h"
#include "core/TextLines.h"
#include "platform/TemporaryFolder.h"
#include "shell/Program.h"
#include "shell/StartUp.h"
#include "shell/UserHands.h"
#include "shuffler/PlainShuffle.h"
#include "shuffler/ShuffleEngine.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;

// A copy of the plan, a program folder with the default rules, and the program on them.
struct RealWorld {
    fs::path folder;
    test::SystemFileSystem files;
    test::FakeWorld fakes{{.files = &files}};
    Program program{fakes.services, (folder / "Program").string(), (folder / "kept").string()};

    static fs::path Source() { return fs::path(ORLO_SOURCE_DIR) / ".." / "shared" / "real"; }

    explicit RealWorld(const std::string& name) : folder(fs::path(ORLO_BINARY_DIR) / name) {
        fs::remove_all(folder);
        fs::create_directories(folder / "Plan");
        for (const auto& entry : fs::directory_iterator(Source() / "plan")) {
            fs::copy_file(entry.path(), folder / "Plan" / entry.path().filename());
            fs::permissions(folder / "Plan" / entry.path().filename(), fs::perms::owner_write,
                            fs::perm_options::add);
        }
        fs::copy(fs::path(ORLO_SOURCE_DIR) / "share", folder / "Program");
        fakes.machineSettings.Set(kSimulatorKeyPath, kSimulatorValue, (Source() / "simulator").string());
        for (int i = 0; i < 997; ++i) fakes.random.draws.push_back(((i * 617) % 997) / 997.0);
    }
    ~RealWorld() { fs::remove_all(folder); }
};

TEST(RealWorld, IsOpenedShuffledAndSavedWholeAndByThePlainRules) {
    if (!fs::exists(RealWorld::Source())) GTEST_SKIP() << "no world of real traffic beside the checkout";
    RealWorld world("real-world");
    Session& session = world.program.session;
    MainForm& form = world.program.forms.frmMain;
    ASSERT_TRUE(StartUp(world.program.context));
    world.program.pump.Windows().Show(form);
    world.fakes.windows.paths.push_back((world.folder / "Plan" / "FlightPlans.txt").string());
    UserHands user(world.program.pump);
    ASSERT_TRUE(user.Press(form.mnuFileLoad));
    const std::string lines = ReadWholeFile(world.files, session.plan.FlightplanPath).value_or("");
    ASSERT_EQ(session.plan.FlightCount(), std::count(lines.begin(), lines.end(), '\n'));
    ASSERT_TRUE(user.Press(form.cmdShuffle));
    ASSERT_TRUE(world.fakes.messages.shown.back().second.ends_with(" flights remaining."));

    ASSERT_TRUE(user.Press(form.mnuFileSave));
    Plan saved, removed;
    saved.FlightplanPath = session.plan.FlightplanPath;
    removed.FlightplanPath = (world.folder / "Plan" / kRemovedFlightsName).string();
    ReadFlightplan(saved, world.fakes.services);
    ReadFlightplan(removed, world.fakes.services);
    EXPECT_GT(removed.FlightCount(), 0);
    EXPECT_EQ(saved.FlightCount() + removed.FlightCount(), session.plan.FlightCount());

    // Some hundred flights once more, with levels drawn and with those of the plan.
    for (const bool checkFL : {true, false}) {
        for (std::int32_t i = 0; i < session.plan.FlightCount(); ++i)
            session.plan.Flights.SetRemoved(i, i % 251 != 0);
        session.shuffle.CheckFL = checkFL;
        world.fakes.random.taken = 0;
        test::FakeRandom random = world.fakes.random;
        const test::PlainShuffle plain(session, random);
        EXPECT_GT(plain.assigned, 100);
        EXPECT_EQ(ShuffleFlightplan(session, world.fakes.services, "").assigned, plain.assigned);
        EXPECT_EQ(world.fakes.random.taken, random.taken);
        for (std::int32_t i = 0; i < session.plan.FlightCount(); ++i) {
            ASSERT_EQ(session.plan.Flights.Line(i), plain.session.plan.Flights.Line(i));
            ASSERT_EQ(session.plan.Flights.Removed(i), plain.session.plan.Flights.Removed(i)) << i;
        }
    }
}

}  // namespace
}  // namespace orlo
