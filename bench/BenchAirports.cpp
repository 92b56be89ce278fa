// The airport tools on the scenery of a real world where one lies beside the checkout, else on made airports.
// Their limit is one walk over the names of all airports, which is measured beside them; the counter "x" of a
// run is the ratio to it.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>

#include "RealWorld.h"
#include "core/Path.h"
#include "editors/AirportCharts.h"
#include "editors/AirportDistance.h"
#include "editors/AirportReport.h"
#include "editors/AirportSearch.h"
#include "platform/posix/PosixFileSystem.h"
#include "simulator/BglAirport.h"
#include "simulator/Scenery.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::size_t kMade = 22'000;

std::vector<AirportRecord> ReadAirports() {
    PosixFileSystem files;
    std::vector<AirportRecord> airports;
    const std::string folder = SceneryFolder((bench::RealWorldFolder() / "simulator").string());
    for (const std::string& name : SceneryFileNames(files, folder))
        ReadAFDFile(files, JoinPath(folder, name), airports);
    AirportRecord made;
    made.Name = "An Airport of the World";
    made.Latitude = "N47*27.5712'";
    made.Longitude = "W122*18.1234'";
    made.Region = "North America";
    made.Country = "United States of America";
    made.State = "Washington";
    made.City = "Some City";
    made.Runways.resize(6);
    made.Parkings.resize(400);
    while (airports.size() < kMade) {
        made.ICAO = Concat("Z", airports.size());
        airports.push_back(made);
    }
    return airports;
}

struct World : test::FakeProgram {
    World() {
        session.scenery.Airports = ReadAirports();
        for (const AirportRecord& airport : session.scenery.Airports)
            AddPlanAirport(airport.ICAO, airport.Latitude, airport.Longitude);
    }
    const std::vector<AirportRecord>& Airports() const { return session.scenery.Airports; }
    DistanceForm& distance = program.forms.frmDistance;
};

World& TheWorld() {
    static World world;
    world.session.plan.PlanLoaded = false;
    world.inModal = nullptr;
    return world;
}

std::size_t WalkNames(const std::vector<AirportRecord>& airports) {
    std::size_t found = 0;
    for (const AirportRecord& airport : airports) {
        for (const std::string* name :
             {&airport.ICAO, &airport.Name, &airport.City, &airport.Country, &airport.Region, &airport.State})
            found += static_cast<std::size_t>(std::count(name->begin(), name->end(), 'q'));
    }
    return found;
}

double SecondsNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void BM_WalkNames(benchmark::State& state) {
    const World& world = TheWorld();
    for (auto _ : state) benchmark::DoNotOptimize(WalkNames(world.Airports()));
    state.counters["airports"] = static_cast<double>(world.Airports().size());
}

// Runs it, and tells its time as a multiple of a walk, best of a few.
template <typename Work>
void Measure(benchmark::State& state, Work work) {
    const double start = SecondsNow();
    for (auto _ : state) work();
    const double spent = (SecondsNow() - start) / static_cast<double>(state.iterations());
    double best = 1e9;
    for (int i = 0; i < 5; ++i) {
        const double walk = SecondsNow();
        benchmark::DoNotOptimize(WalkNames(TheWorld().Airports()));
        best = std::min(best, SecondsNow() - walk);
    }
    state.counters["x"] = spent / best;
}

// As the button does it, with all airports in the plan's list.
void Search(benchmark::State& state, std::string_view text) {
    World& world = TheWorld();
    AirportSearchForm& form = world.program.forms.frmAirportSearch;
    form.txtSearch.text = text;
    Measure(state, [&] { SearchAirports(world.context); });
    state.counters["found"] = form.lvSearch.Count();
    form.lvSearch.Clear();
}

void BM_SearchAll(benchmark::State& state) {
    Search(state, "");
}
void BM_SearchMany(benchmark::State& state) {
    Search(state, "united states");
}
void BM_SearchNothing(benchmark::State& state) {
    Search(state, "nowhere to be found");
}

const AirportRecord& Largest() {
    const auto& airports = TheWorld().Airports();
    const auto size = [](const AirportRecord& airport) {
        return airport.Parkings.size() + airport.Runways.size() + airport.Frequencies.size();
    };
    return *std::max_element(
        airports.begin(), airports.end(),
        [&](const AirportRecord& a, const AirportRecord& b) { return size(a) < size(b); });
}

void BM_ReportOfTheLargest(benchmark::State& state) {
    const AirportRecord& largest = Largest();
    Measure(state, [&] { benchmark::DoNotOptimize(AirportReport(largest)); });
    state.counters["bytes"] = static_cast<double>(AirportReport(largest).size());
}

void BM_ChartsOfTheLargest(benchmark::State& state) {
    const AirportRecord& largest = Largest();
    Measure(state, [&] {
        benchmark::DoNotOptimize(RunwayChart(largest));
        benchmark::DoNotOptimize(ParkingChart(largest));
    });
}

// From the menu to the open window and back.
void OpenDistance(benchmark::State& state, bool withPlan) {
    World& world = TheWorld();
    world.session.plan.PlanLoaded = withPlan;
    std::size_t listed = 0;
    world.inModal = [&] { listed = world.distance.cmSource.entries.size(); };
    Measure(state, [&] { ShowAirportDistance(world.context); });
    state.counters["listed"] = static_cast<double>(listed);
}

void BM_OpenDistance(benchmark::State& state) {
    OpenDistance(state, false);
}
void BM_OpenDistanceWithPlan(benchmark::State& state) {
    OpenDistance(state, true);
}

// The last two airports, which are found last.
void BM_Distance(benchmark::State& state) {
    World& world = TheWorld();
    world.inModal = [&] {
        const auto count = static_cast<std::int32_t>(world.distance.cmSource.entries.size());
        world.distance.cmSource.index = count - 1;
        world.distance.cmDest.index = count - 2;
        Measure(state, [&] {
            world.distance.txtResult.text.clear();
            AddAirportDistance(world.context);
        });
    };
    ShowAirportDistance(world.context);
}

BENCHMARK(BM_WalkNames)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SearchAll)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SearchMany)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SearchNothing)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReportOfTheLargest)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ChartsOfTheLargest)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenDistance)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenDistanceWithPlan)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Distance)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orlo
