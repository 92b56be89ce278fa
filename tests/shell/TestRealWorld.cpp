// The main job on a world of real traffic, where one lies beside the checkout: opened, shuffled with the
// default rules, saved, and every flight held against what its aircraft can do.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>

#include "core/FlightplanFile.h"
#include "core/Number.h"
#include "core/Settings.h"
#include "core/TextLines.h"
#include "platform/posix/PosixFileSystem.h"
#include "shell/Program.h"
#include "shell/StartUp.h"
#include "simulator/PlanPositions.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;

// A copy of the plan, a program folder with the default rules, and the program on them.
struct RealWorld {
    fs::path folder;
    PosixFileSystem files;
    test::FakeWorld fakes{{.files = &files}};
    Program program{fakes.services, (folder / "Program").string()};

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

    void Press(Control& control) {
        Event event{&control.form, &control, EventKind::Click};
        ASSERT_TRUE(program.pump.Deliver(event)) << control.name;
    }
};

// Why the aircraft can't fly the flight; empty when it can. Written from what each limit means, flight by
// flight.
std::string Misfit(const Session& session,
                   const std::map<std::string, const AirportRecord*, std::less<>>& airports,
                   const PlanPositions& positions, const FSAircraft& aircraft, const FlightView& flight) {
    std::int32_t runway = 999999;
    std::int32_t parking = 999999;
    std::int32_t surface = 0;
    std::string_view from = flight.StartAirport();
    for (const LegView& leg : flight) {
        const std::int32_t distance = positions.Distance(from, leg.Destination);
        if (distance < aircraft.MinRange || distance > aircraft.MaxRange) return "range";
        if (!session.shuffle.CheckFL) {
            const std::int32_t level = ParseWholeNumber(leg.FlightLevel).value_or(-1);
            if (level < aircraft.MinFL || level > aircraft.MaxFL) return "level";
        }
        const auto found = airports.find(leg.Destination);
        if (found != airports.end()) {
            const AirportRecord& airport = *found->second;
            runway = std::min({runway, airport.TakeoffLength, airport.LandingLength});
            parking = std::min(parking, airport.MinParkingRadius);
            surface = std::max({surface, airport.TakeoffSurface, airport.LandingSurface});
        }
        from = leg.Destination;
    }
    if (aircraft.RunwayLength > runway) return "runway";
    if (aircraft.MinParkingRadius > parking) return "parking";
    constexpr const char* kWords[] = {"1", "HARD", "SOFT", "WATER", "SNOW"};
    return ContainsNoCase(aircraft.RunwayTypes, kWords[surface]) ? "" : "surface";
}

void ShuffleAndCheck(bool checkFL) {
    if (!fs::exists(RealWorld::Source())) GTEST_SKIP() << "no world of real traffic beside the checkout";
    RealWorld world(checkFL ? "real-world-levels" : "real-world");
    Session& session = world.program.session;
    MainForm& form = world.program.forms.frmMain;
    ASSERT_TRUE(StartUp(world.program.context));
    world.program.pump.Windows().Show(form);
    world.fakes.windows.paths.push_back((world.folder / "Plan" / "FlightPlans.txt").string());
    world.Press(form.mnuFileLoad);
    const std::string lines = ReadWholeFile(world.files, session.plan.FlightplanPath).value_or("");
    ASSERT_EQ(session.plan.FlightCount(), std::count(lines.begin(), lines.end(), '\n'));
    form.ckCheckFL.checked = checkFL;
    world.Press(form.cmdShuffle);
    ASSERT_TRUE(world.fakes.messages.shown.back().second.ends_with(" flights remaining."));

    std::map<std::string, const AirportRecord*, std::less<>> airports;
    for (const AirportRecord& airport : session.scenery.Airports)
        airports.try_emplace(UpperText(airport.ICAO), &airport);
    std::map<std::string, const FSAircraft*, std::less<>> aircraft;
    for (const PlanAircraft& plan : session.plan.PlanAircrafts) {
        for (const FSAircraft& installed : session.fleet.FSAircrafts) {
            if (EqualNoCase(installed.Title, plan.Title)) aircraft.try_emplace(plan.ACNumber, &installed);
        }
    }
    const PlanPositions positions(session.plan);
    std::int32_t removed = 0;
    for (std::int32_t i = 0; i < session.plan.FlightCount(); ++i) {
        const FlightView flight = session.plan.Flights.At(i);
        if (flight.Removed) {
            // Nothing in the fleet can fly it. With levels recomputed, so can nothing at any level.
            ++removed;
            for (const auto& [number, candidate] : aircraft) {
                ASSERT_NE(Misfit(session, airports, positions, *candidate, flight), "")
                    << session.plan.Flights.Line(i);
            }
            continue;
        }
        const auto chosen = aircraft.find(flight.ACNumber);
        ASSERT_NE(chosen, aircraft.end());
        ASSERT_EQ(Misfit(session, airports, positions, *chosen->second, flight), "")
            << session.plan.Flights.Line(i);
    }

    world.Press(form.mnuFileSave);
    Plan again;
    again.FlightplanPath = session.plan.FlightplanPath;
    ReadFlightplan(again, world.fakes.services);
    EXPECT_EQ(again.FlightCount(), session.plan.FlightCount() - removed);
    again.FlightplanPath = (world.folder / "Plan" / kRemovedFlightsName).string();
    ReadFlightplan(again, world.fakes.services);
    EXPECT_EQ(again.FlightCount(), removed);
}

TEST(RealWorld, EveryFlightGetsAnAircraftThatCanFlyItOrNoneCan) {
    ShuffleAndCheck(true);
}

TEST(RealWorld, WithoutCorrectionTheAircraftAlsoFitsTheLevels) {
    ShuffleAndCheck(false);
}

}  // namespace
}  // namespace orlo
