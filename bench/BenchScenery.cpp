// The scan of the simulator's scenery and aircraft, and its cache. The limit of each is reading the files'
// bytes, which the counter "x" of a run is the ratio to.

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "RealWorld.h"
#include "core/Path.h"
#include "core/TextLines.h"
#include "platform/posix/PosixFileSystem.h"
#include "simulator/AfdCache.h"
#include "simulator/AircraftScan.h"
#include "simulator/BglAirport.h"
#include "simulator/GateResize.h"
#include "simulator/Scenery.h"

namespace orlo {
namespace {

// The folder of a simulator beside the checkout.
std::string SimulatorFolder() {
    return (bench::RealWorldFolder() / "simulator").string();
}

double SecondsNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Time per run over the time of reading the same files whole, best of a few.
void ReportRatio(benchmark::State& state, double spent, const std::vector<std::string>& paths) {
    PosixFileSystem files;
    double best = 1e9;
    std::size_t bytes = 0;
    for (int i = 0; i < 5; ++i) {
        const double start = SecondsNow();
        bytes = 0;
        for (const std::string& path : paths) bytes += ReadWholeFile(files, path).value_or("").size();
        best = std::min(best, SecondsNow() - start);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["x"] = spent / runs / best;
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void BM_ScanScenery(benchmark::State& state) {
    PosixFileSystem files;
    std::vector<std::string> paths;
    const std::string folder = SceneryFolder(SimulatorFolder());
    for (const std::string& name : SceneryFileNames(files, folder)) paths.push_back(JoinPath(folder, name));
    if (paths.empty()) return state.SkipWithError("no scenery lies beside the checkout");
    std::size_t airports = 0;
    const double start = SecondsNow();
    for (auto _ : state) {
        std::vector<AirportRecord> records;
        for (const std::string& path : paths) ReadAFDFile(files, path, records);
        airports = records.size();
    }
    ReportRatio(state, SecondsNow() - start, paths);
    state.counters["airports"] = static_cast<double>(airports);
}

void BM_ScanRealAircraft(benchmark::State& state) {
    PosixFileSystem files;
    Session session;
    for (auto _ : state) ScanAircraft(session.fleet, session.rules.Classes, files, SimulatorFolder(), true);
    if (session.fleet.FSAircrafts.empty()) return state.SkipWithError("no aircraft lie beside the checkout");
    state.counters["variants"] = session.fleet.FSAircraftCount();
}

// 150 folders of 20 variants, each with its own texture folder.
void BM_ScanAircraft(benchmark::State& state) {
    const auto root = std::filesystem::temp_directory_path() / "orlo-bench-aircraft";
    for (int folder = 0; folder < 150; ++folder) {
        const auto path = root / "Aircraft" / ("Type " + std::to_string(folder));
        std::filesystem::create_directories(path / "model");
        std::ofstream(path / "craft.air") << "a";
        std::ofstream(path / "model" / "model.cfg") << "[models]\r\nnormal=main\r\n";
        std::ofstream(path / "model" / "main.mdl") << "RIFF" << std::string(5000, 'm');
        std::ofstream config(path / "aircraft.cfg");
        for (int variant = 0; variant < 20; ++variant) {
            std::filesystem::create_directories(path / ("texture." + std::to_string(variant)));
            config << "[fltsim." << variant << "]\r\ntitle=Type " << folder << " Livery " << variant
                   << "\r\nsim=craft\r\nmodel=\r\npanel=\r\nsound=\r\ntexture=" << variant
                   << "\r\natc_airline=WORLD\r\nui_manufacturer=M\r\nui_type=T\r\ndescription=words\r\n";
        }
        config << "[General]\r\natc_type=TYPE\r\natc_model=M" << folder << "\r\n";
        config << "[Reference Speeds]\r\ncruise_speed=450\r\n";
    }
    PosixFileSystem files;
    Session session;
    for (int i = 0; i < 300; ++i) {
        ClassEntry entry;
        entry.ID = "Q" + std::to_string(i);
        session.rules.Classes.Entries[kClassMicroProp].push_back(entry);
    }
    for (auto _ : state) ScanAircraft(session.fleet, session.rules.Classes, files, root.string(), true);
    state.counters["variants"] = session.fleet.FSAircraftCount();
    state.counters["problems"] = session.fleet.FSAircraftProblems;
    std::filesystem::remove_all(root);
}

std::vector<AirportRecord> SampleAirports() {
    AirportRecord airport;
    airport.Name = "An Airport of the World";
    airport.ICAO = "KXYZ";
    airport.Latitude = "N47*27.5712'";
    airport.Longitude = "W122*18.1234'";
    airport.Region = "North America";
    airport.Country = "United States of America";
    airport.City = "Some City";
    airport.Runways.resize(2);
    for (RunwayRecord& runway : airport.Runways) runway.Name = "16L", runway.Ident = "34R";
    ParkingRecord parking;
    parking.Name = "12 Parking SE";
    airport.Parkings.assign(7, parking);
    airport.Frequencies.assign(2, {"Some City Tower", "118.300", 6});
    return std::vector<AirportRecord>(22000, airport);
}

void BM_WriteCache(benchmark::State& state) {
    PosixFileSystem files;
    const auto records = SampleAirports();
    const std::string path = (std::filesystem::temp_directory_path() / "orlo-bench-cache.dat").string();
    const double start = SecondsNow();
    for (auto _ : state) WriteAFDCache(files, path, records, {});
    ReportRatio(state, SecondsNow() - start, {path});
    std::filesystem::remove(path);
}

void BM_ReadCache(benchmark::State& state) {
    PosixFileSystem files;
    const std::string path = (std::filesystem::temp_directory_path() / "orlo-bench-cache.dat").string();
    WriteAFDCache(files, path, SampleAirports(), {});
    const double start = SecondsNow();
    for (auto _ : state) {
        std::vector<AirportRecord> records;
        AFDCacheHeader header;
        if (!ReadAFDCache(files, path, records, header)) state.SkipWithError("the cache doesn't read");
    }
    ReportRatio(state, SecondsNow() - start, {path});
    std::filesystem::remove(path);
}

// Best of a few runs that write each file's own bytes over it.
double SecondsOfRewriting(const std::vector<std::string>& paths) {
    PosixFileSystem files;
    double best = 1e9;
    for (int i = 0; i < 5; ++i) {
        double spent = 0;
        for (const std::string& path : paths) {
            const FilePatch all{0, ReadWholeFile(files, path).value_or("")};
            const double start = SecondsNow();
            files.PatchFile(path, {&all, 1});
            spent += SecondsNow() - start;
        }
        best = std::min(best, spent);
    }
    return best;
}

// All parkings of one type in a copy of the whole scenery, without backups. Nearly every page of the files is
// written, so that the system's way to the disk's cache, "rewrite" in milliseconds, is the second limit.
void BM_ResizeGates(benchmark::State& state) {
    PosixFileSystem files;
    const std::string from = SceneryFolder(SimulatorFolder());
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "orlo-bench-gates";
    std::filesystem::create_directories(folder);
    std::vector<std::string> paths;
    for (const std::string& name : SceneryFileNames(files, from)) {
        paths.push_back((folder / name).string());
        files.CopyFile(JoinPath(from, name), paths.back());
    }
    if (paths.empty()) return state.SkipWithError("no scenery lies beside the checkout");
    GateResize resize{
        .Class = static_cast<std::int32_t>(state.range(0)), .Radius = 20, .Search = {}, .ICAO = {}};
    std::int32_t gates = 0;
    const double start = SecondsNow();
    for (auto _ : state) {
        resize.Radius += 1;
        gates = ResizeAllFiles(files, folder.string(), resize, nullptr).count;
    }
    ReportRatio(state, SecondsNow() - start, paths);
    state.counters["gates"] = gates;
    state.counters["rewrite"] = SecondsOfRewriting(paths) * 1000;
    std::filesystem::remove_all(folder);
}

BENCHMARK(BM_ResizeGates)->ArgName("class")->Arg(1)->Arg(4)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScanScenery)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScanRealAircraft)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScanAircraft)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WriteCache)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadCache)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orlo
