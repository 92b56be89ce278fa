// Opening a plan as the menu does, its side files apart, and undo. The limit of an open is reading the plan's
// bytes (BM_PlainRead).

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "core/PlanSideFiles.h"
#include "core/Settings.h"
#include "mainwindow/UndoSnapshot.h"
#include "platform/posix/PosixFileSystem.h"
#include "shell/OpenPlan.h"
#include "shell/Program.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;

constexpr int kAircraft = 3000;
constexpr int kAirports = 22000;

// A folder with a plan of so many flights, its side files and a simulator that has its aircraft; made once a
// run.
const fs::path& FolderOf(std::int64_t flights) {
    static std::map<std::int64_t, fs::path> folders;
    fs::path& folder = folders[flights];
    if (!folder.empty()) return folder;
    folder = fs::temp_directory_path() / Concat("orlo-bench-open-", flights);
    fs::create_directories(folder / "Aircraft" / "Jet");
    std::ofstream plan(folder / "FlightPlans.txt", std::ios::binary);
    for (std::int64_t i = 0; i < flights; ++i) {
        plan << "AC#" << i % kAircraft + 1 << ",N" << i % 100000 << "AB," << i % 99 + 1 << "%,WEEK,IFR";
        for (std::int64_t leg = 0; leg < 2 + i % 4; ++leg) plan << ",0/00:02:00,0/01:27:00,395,F,2348,KICT";
        plan << "\r\n";
    }
    std::ofstream aircraft(folder / "Aircraft.txt", std::ios::binary);
    std::ofstream config(folder / "Aircraft" / "Jet" / "aircraft.cfg", std::ios::binary);
    for (int i = 1; i <= kAircraft; ++i) {
        aircraft << "AC#" << i << ",450,\"Jet " << i << "\"\r\n";
        config << "[fltsim." << i - 1 << "]\r\ntitle=Jet " << i << "\r\natc_airline=Airline " << i % 300
               << "\r\n";
    }
    std::ofstream airports(folder / "Airports.txt", std::ios::binary);
    for (int i = 0; i < kAirports; ++i) airports << "A" << i << ",N50* 2.50',E8* 34.20',364\r\n";
    return folder;
}

// The program on a real disk, its front end a fake.
struct OpenWorld {
    PosixFileSystem files;
    test::FakeWorld fakes{{.files = &files}};
    Services& services = fakes.services;
    Program program{services, ".", "kept"};
    std::string plan;

    explicit OpenWorld(std::int64_t flights) : plan((FolderOf(flights) / "FlightPlans.txt").string()) {
        fakes.machineSettings.Set(kSimulatorKeyPath, kSimulatorValue, FolderOf(flights).string());
        program.session.plan.FlightplanPath = plan;
    }
};

void BM_ReadPlanAircraft(benchmark::State& state) {
    OpenWorld world(10'000);
    for (auto _ : state) ReadPlanAircraft(world.program.session.plan, world.services);
    state.counters["records"] = world.program.session.plan.PlanAircraftCount();
}

void BM_ReadPlanAirports(benchmark::State& state) {
    OpenWorld world(10'000);
    for (auto _ : state) ReadPlanAirports(world.program.session.plan, world.services);
    state.counters["records"] = world.program.session.plan.PlanAirportCount();
}

void BM_OpenFlightplan(benchmark::State& state) {
    OpenWorld world(state.range(0));
    for (auto _ : state) {
        OpenFlightplan(world.program.context, world.plan);
        world.fakes.progress.lines.clear();
    }
    state.counters["flights"] = world.program.session.plan.FlightCount();
}

void BM_UndoSnapshotAndRestore(benchmark::State& state) {
    OpenWorld world(state.range(0));
    OpenFlightplan(world.program.context, world.plan);
    for (auto _ : state) {
        TakeUndoSnapshot(world.program.context);
        RestoreUndoSnapshot(world.program.context);
        world.fakes.messages.shown.clear();
    }
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_ReadPlanAircraft)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadPlanAirports)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenFlightplan) ORLO_SIZES;
BENCHMARK(BM_UndoSnapshotAndRestore) ORLO_SIZES;

}  // namespace
}  // namespace orlo
