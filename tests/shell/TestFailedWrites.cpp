// Every writer on a disk that fails: the old file stays whole, and the program goes on.

#include <gtest/gtest.h>

#include <functional>

#include "config/AircraftClasses.h"
#include "operations/GeneratedLists.h"
#include "platform/common/TextSettingsStore.h"
#include "simulator/AfdCache.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::string_view kOld = "the old file, which is longer than what a full disk takes\r\n";

struct Writer {
    const char* name;
    const char* path;
    bool saysSo;  // the status bar names the file
    std::function<void(test::FakeProgram&)> write;
};

void AddPlan(test::FakeProgram& fake) {
    fake.session.plan.FlightplanPath = "/plan/FlightPlans.txt";
    fake.session.switches.BackupPlan = false;
    fake.session.plan.PlanAircrafts = {{"AC#1", "Jet One", "450", 0}};
    Flight flight;
    flight.ACNumber = "AC#1";
    flight.Legs.resize(2);
    fake.session.plan.Flights.Append(flight);
    fake.form.mnuFileSave.enabled = true;
}

const std::vector<Writer> kWriters = {
    {"the plan", "/plan/FlightPlans.txt", true,
     [](test::FakeProgram& fake) { fake.Press(fake.form.mnuFileSave); }},
    {"the removed flights", "/plan/Removed Flights.txt", true,
     [](test::FakeProgram& fake) {
         fake.session.plan.Flights.SetRemoved(0, true);
         fake.Press(fake.form.mnuFileSave);
     }},
    {"the plan's aircraft", "/plan/Aircraft.txt", true,
     [](test::FakeProgram& fake) { fake.Press(fake.form.mnuFileSave); }},
    {"the airline skeleton", "/program/New ORLO_AL.CFG", true,
     [](test::FakeProgram& fake) {
         fake.session.scenery.Airports.resize(1);
         fake.Press(fake.form.mnuToolsAirlinesCFG);
     }},
    {"the airports of the scenery", "/program/New Airports.txt", true,
     [](test::FakeProgram& fake) {
         fake.session.scenery.Airports.resize(1);
         fake.Press(fake.form.mnuToolsAirportsTXT);
     }},
    {"the aircraft types", "/program/New AircraftTypes.dat", true,
     [](test::FakeProgram& fake) {
         fake.AddInstalled("Jet One");
         GenerateAllAircraftTypes(fake.context, fake.form);
     }},
    {"the aircraft classes", "/program/ORLO_AC.CFG", false,
     [](test::FakeProgram& fake) { EXPECT_FALSE(WriteAircraftClasses(fake.session, fake.world.files)); }},
    {"the airports read before", "/program/AFDCache.dat", false,
     [](test::FakeProgram& fake) {
         EXPECT_FALSE(WriteAFDCache(fake.world.files, "/program/AFDCache.dat", {AirportRecord()}, {}));
     }},
    {"the settings", "/home/settings.txt", false,
     [](test::FakeProgram& fake) {
         TextSettingsStore store(fake.world.files, "/home/settings.txt");
         store.Set("SOFTWARE\\Orlo", "Name", "Value");
         EXPECT_FALSE(store.Flush());
     }},
};

TEST(FailedWrites, LeaveTheOldFileWholeAndTheProgramRunning) {
    const struct {
        const char* name;
        void (*cause)(test::MemoryFileSystem& files);
    } failures[] = {
        {"no second file and none in place", [](test::MemoryFileSystem& files) { files.failCreate = true; }},
        {"a full disk", [](test::MemoryFileSystem& files) { files.failAfterBytes = 3; }},
        {"a failed rename", [](test::MemoryFileSystem& files) { files.failCommit = true; }},
    };
    for (const Writer& writer : kWriters) {
        for (const auto& failure : failures) {
            SCOPED_TRACE(testing::Message() << writer.name << ": " << failure.name);
            test::FakeProgram fake;
            AddPlan(fake);
            fake.world.files.files[writer.path] = kOld;
            failure.cause(fake.world.files);
            writer.write(fake);
            EXPECT_EQ(fake.world.files.files[writer.path], kOld);
            EXPECT_TRUE(fake.form.enabled);
            EXPECT_EQ(fake.form.pointer, PointerShape::Normal);
            if (writer.saysSo) {
                EXPECT_TRUE(fake.form.sbMain.text.starts_with("Not written: [")) << fake.form.sbMain.text;
                // A write that succeeds takes the warning away.
                fake.world.files.failCreate = fake.world.files.failCommit = false;
                fake.world.files.failAfterBytes = -1;
                fake.form.mnuFileSave.enabled = true;
                writer.write(fake);
                const std::string& text = fake.form.sbMain.text;
                EXPECT_TRUE(text.empty() || text.starts_with("Kept a copy of [")) << text;
            }
        }
    }
}

TEST(FailedWrites, AKillBetweenTwoFilesOfASaveLosesNoFlight) {
    constexpr int kKept = 3;  // two copies and their entry
    for (int written = 0; written < kKept + 4; ++written) {
        SCOPED_TRACE(written);
        test::FakeProgram fake;
        AddPlan(fake);
        Flight removed = fake.session.plan.Flights.Unpack(0);
        removed.TailNumber = "REMOVED";
        removed.Removed = true;
        fake.session.plan.Flights.Append(removed);
        fake.world.files.files["/plan/FlightPlans.txt"] = "old plan with REMOVED";
        fake.world.files.files["/plan/Aircraft.txt"] = "old aircraft";
        fake.world.files.commitsBeforeKill = written;
        fake.Press(fake.form.mnuFileSave);
        auto& files = fake.world.files.files;
        const std::string plan = files["/plan/FlightPlans.txt"];
        EXPECT_EQ(plan == "old plan with REMOVED", written < kKept + 2) << "old or new, never a part";
        EXPECT_TRUE((plan + files["/plan/Removed Flights.txt"]).find("REMOVED") != std::string::npos);
        EXPECT_EQ(files["/plan/Aircraft.txt"] == "old aircraft", written < kKept + 3);
    }
}

}  // namespace
}  // namespace orlo
