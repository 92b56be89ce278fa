// A merge of ten plans on a real disk. Its limit is reading and writing their bytes, which is measured beside
// it.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "core/Text.h"
#include "core/TextLines.h"
#include "platform/Platform.h"
#include "projects/PlanMerger.h"

namespace orlo {
namespace {

constexpr int kPlans = 10;
constexpr int kTitles = 1000;  // that all plans share, under other numbers in each

struct World {
    explicit World(std::int64_t lines) {
        std::filesystem::create_directories(folder);
        for (int plan = 0; plan < kPlans; ++plan) {
            std::ofstream aircraft(PathOf("Aircraft", plan), std::ios::binary);
            for (int i = 0; i < kTitles; ++i)
                aircraft << "AC#" << (i + plan) % kTitles + 1 << ",440,\"Sample Aircraft " << i << "\"\r\n";
            std::ofstream flights(PathOf("Flights", plan), std::ios::binary);
            for (std::int64_t i = 0; i < lines; ++i)
                flights << "AC#" << i % kTitles + 1
                        << ",N1234A,50%,24Hr,IFR,10:00:00,11:00:00,350,F,1234,EDDF,12:00:00,13:00:00,350,F,"
                           "1235,EDDM\r\n";
        }
    }
    ~World() { std::filesystem::remove_all(folder); }
    std::string PathOf(std::string_view name, int plan) const {
        return (folder / Concat(name, plan, ".txt")).string();
    }
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "orlo-bench-merge";
    std::unique_ptr<FileSystem> files = MakeFileSystem();
};

void BM_CopyBytes(benchmark::State& state) {
    World world(state.range(0));
    for (auto _ : state) {
        const auto out = world.files->CreateInPlace((world.folder / "FlightPlans.txt").string());
        for (int plan = 0; plan < kPlans; ++plan)
            out->Write(ReadWholeFile(*world.files, world.PathOf("Flights", plan)).value_or(""));
        out->Commit();
    }
}

void BM_MergePlans(benchmark::State& state) {
    World world(state.range(0));
    for (auto _ : state) {
        LineFile aircraft;
        LineFile flights;
        aircraft.Open(*world.files, (world.folder / "Aircraft.txt").string());
        flights.Open(*world.files, (world.folder / "FlightPlans.txt").string());
        PlanMerger merger(*world.files, aircraft, flights);
        for (int plan = 0; plan < kPlans; ++plan) {
            merger.BeginPlan();
            merger.AddAircraft(world.PathOf("Aircraft", plan));
            merger.AddFlights(world.PathOf("Flights", plan));
        }
        aircraft.Close();
        flights.Close();
    }
}

#define ORLO_SIZES ->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_CopyBytes) ORLO_SIZES;
BENCHMARK(BM_MergePlans) ORLO_SIZES;

}  // namespace
}  // namespace orlo
