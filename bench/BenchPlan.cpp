// Reading, copying and writing a flightplan. The limit of a read is reading the file's bytes, that of a copy
// and of a write is moving the memory: both are measured beside them, so that a ratio within one run tells
// how far off we are.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "core/FlightplanFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

// A plan file of so many flights of 3.5 legs on average, in the folder for temporary files; made once a run.
const std::string& PlanOf(std::int64_t flights) {
    static std::map<std::int64_t, std::string> paths;
    std::string& path = paths[flights];
    if (!path.empty()) return path;
    path = (std::filesystem::temp_directory_path() / Concat("orlo-bench-", flights, ".txt")).string();
    std::ofstream file(path, std::ios::binary);
    for (std::int64_t i = 0; i < flights; ++i) {
        file << "AC#" << i % 3000 + 1 << ",N" << i % 100000 << "AB," << i % 99 + 1 << "%,WEEK,IFR";
        for (std::int64_t leg = 0; leg < 2 + i % 4; ++leg) {
            file << ",0/00:02:00,0/01:27:00,395,F,2348,K" << static_cast<char>('A' + (i + leg) % 26) << "CT";
        }
        file << "\r\n";
    }
    return path;
}

void BM_PlainRead(benchmark::State& state) {
    PosixFileSystem files;
    const std::string& path = PlanOf(state.range(0));
    std::vector<char> buffer(1024 * 1024);
    for (auto _ : state) {
        const auto file = files.OpenForReading(path);
        while (file->Read(buffer) > 0) {
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(*files.FileSize(path)));
}

void BM_ReadFlightplan(benchmark::State& state) {
    PosixFileSystem files;
    test::FakeWorld world{{.files = &files}};
    Plan plan;
    plan.FlightplanPath = PlanOf(state.range(0));
    for (auto _ : state) {
        ReadFlightplan(plan, world.services);
        world.progress.lines.clear();
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(*files.FileSize(plan.FlightplanPath)));
    state.counters["MB"] = static_cast<double>(plan.Flights.MemoryBytes()) / 1e6;
}

FlightList ListOf(std::int64_t flights) {
    PosixFileSystem files;
    test::FakeWorld world{{.files = &files}};
    Plan plan;
    plan.FlightplanPath = PlanOf(flights);
    ReadFlightplan(plan, world.services);
    return plan.Flights;
}

void BM_CopyFlights(benchmark::State& state) {
    const FlightList flights = ListOf(state.range(0));
    for (auto _ : state) {
        FlightList copy = flights;
        benchmark::DoNotOptimize(copy.Count());
    }
}

void BM_WalkLegs(benchmark::State& state) {
    const FlightList flights = ListOf(state.range(0));
    for (auto _ : state) {
        std::size_t length = 0;
        for (std::int32_t i = 0; i < flights.Count(); ++i) {
            for (const LegView& leg : flights.At(i)) length += leg.Destination.size();
        }
        benchmark::DoNotOptimize(length);
    }
}

void BM_WriteFlightplan(benchmark::State& state) {
    const FlightList flights = ListOf(state.range(0));
    PosixFileSystem files;
    const std::string path = PlanOf(state.range(0)) + ".written";
    for (auto _ : state) WriteFlightplan(files, path, flights);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(*files.FileSize(path)));
    files.DeleteFile(path);
}

void BM_PlainWrite(benchmark::State& state) {
    PosixFileSystem files;
    const std::string path = PlanOf(state.range(0)) + ".written";
    const std::string piece(1024 * 1024, 'x');
    const auto size = static_cast<std::int64_t>(*files.FileSize(PlanOf(state.range(0))));
    for (auto _ : state) {
        const auto file = files.CreateReplacing(path);
        for (std::int64_t written = 0; written < size; written += static_cast<std::int64_t>(piece.size()))
            file->Write(piece);
        file->Commit();
    }
    state.SetBytesProcessed(state.iterations() * size);
    files.DeleteFile(path);
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_PlainRead) ORLO_SIZES;
BENCHMARK(BM_ReadFlightplan) ORLO_SIZES;
BENCHMARK(BM_CopyFlights) ORLO_SIZES;
BENCHMARK(BM_WalkLegs) ORLO_SIZES;
BENCHMARK(BM_PlainWrite) ORLO_SIZES;
BENCHMARK(BM_WriteFlightplan) ORLO_SIZES;

}  // namespace
}  // namespace orlo
