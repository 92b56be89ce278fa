// Keeping a plan before it is replaced. Its limit is one copy of the file, which is measured beside it; a
// content that is there already is only read.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "core/KeptFiles.h"
#include "platform/Platform.h"

namespace orlo {
namespace {

struct World {
    explicit World(std::int64_t lines) {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        std::ofstream flights(plan, std::ios::binary);
        for (std::int64_t i = 0; i < lines; ++i)
            flights << "AC#" << i
                    << ",N1234A,50%,24Hr,IFR,10:00:00,11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,350,F,1235,"
                       "EDDM\r\n";
    }
    ~World() { std::filesystem::remove_all(folder); }
    void Keep() const { KeepFiles(*files, state, 0, "Save Flightplan", std::span(&plan, 1)); }

    std::filesystem::path folder = std::filesystem::temp_directory_path() / "orlo-bench-kept";
    std::string plan = (folder / "FlightPlans.txt").string();
    std::string state = (folder / "kept").string();
    std::unique_ptr<FileSystem> files = MakeFileSystem();
};

void BM_CopyPlan(benchmark::State& state) {
    const World world(state.range(0));
    const std::string copy = (world.folder / "copy").string();
    for (auto _ : state) {
        world.files->CopyFile(world.plan, copy);
        state.PauseTiming();
        std::filesystem::remove(copy);
        state.ResumeTiming();
    }
}

void BM_KeepPlan(benchmark::State& state) {
    const World world(state.range(0));
    for (auto _ : state) {
        world.Keep();
        state.PauseTiming();
        std::filesystem::remove_all(world.state);
        state.ResumeTiming();
    }
}

void BM_KeepPlanThatIsKept(benchmark::State& state) {
    const World world(state.range(0));
    for (auto _ : state) world.Keep();
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_CopyPlan) ORLO_SIZES;
BENCHMARK(BM_KeepPlan) ORLO_SIZES;
BENCHMARK(BM_KeepPlanThatIsKept) ORLO_SIZES;

}  // namespace
}  // namespace orlo
