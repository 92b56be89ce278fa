// Searches of a whole plan with their list filled and sorted, as the user waits for them, and the work on the
// list. Their limit is one walk over the fields of all rows, which is measured beside them.

#include <benchmark/benchmark.h>

#include <memory>

#include "PlanWorld.h"
#include "mainwindow/PlanViews.h"
#include "operations/SearchFlights.h"
#include "operations/SearchRows.h"
#include "shell/ExportTab.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

struct World : test::FakeProgram {
    explicit World(std::int64_t flights) {
        bench::PlanWorld plan(session, flights);
        ResetExportView(context);
    }
    void Clear() {
        ResetExportView(context);
        form.txtExDeparture.text.clear();
        form.txtExCountry.text.clear();
        form.txtExAirline.text.clear();
        world.progress.lines.clear();
    }
};

World& WorldOf(std::int64_t flights) {
    static std::unique_ptr<World> world;
    if (!world || world->session.plan.FlightCount() != flights) {
        world.reset();
        world = std::make_unique<World>(flights);
    }
    world->Clear();
    return *world;
}

void Count(benchmark::State& state, const World& world) {
    state.counters["found"] = static_cast<double>(world.form.lvExPreview.Count());
}

void BM_WalkFields(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    for (auto _ : state) {
        std::size_t bytes = 0;
        for (std::int32_t i = 0; i < world.session.plan.FlightCount(); ++i) {
            for (const LegView& leg : world.session.plan.Flights.At(i)) bytes += leg.Destination.size();
        }
        benchmark::DoNotOptimize(bytes);
    }
    Count(state, world);
}

template <SearchMode Mode>
void BM_Search(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    for (auto _ : state) SearchFlights(world.context, "", "", Mode);
    Count(state, world);
}

void BM_SearchByAllFields(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    world.form.txtExCountry.text = "country 1";
    world.form.txtExAirline.text = "sample airline 1";
    for (auto _ : state) SearchFlights(world.context, "A1", "A2", SearchMode::Fields);
    Count(state, world);
}

// Each column once.
void BM_SortList(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    SearchFlights(world.context, "", "", SearchMode::Fields);
    ListView& list = world.form.lvExPreview;
    for (auto _ : state) list.SortByColumn(static_cast<std::int32_t>(state.range(1)));
    const auto bytes = static_cast<double>(list.MemoryBytes() +
                                           static_cast<const SearchRows*>(list.Source())->MemoryBytes());
    state.counters["bytes/row"] = bytes / static_cast<double>(list.Count());
}

void BM_ChangeZone(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    SearchFlights(world.context, "", "", SearchMode::Fields);
    for (auto _ : state) {
        world.form.cmExZone.index = (world.form.cmExZone.index + 1) % 38;
        OnExportZone(world.context);
    }
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_WalkFields) ORLO_SIZES;
BENCHMARK(BM_Search<SearchMode::Fields>) ORLO_SIZES;
BENCHMARK(BM_SearchByAllFields) ORLO_SIZES;
BENCHMARK(BM_Search<SearchMode::AircraftNotFound>) ORLO_SIZES;
BENCHMARK(BM_Search<SearchMode::WrongFlightLevel>) ORLO_SIZES;
BENCHMARK(BM_Search<SearchMode::WrongTime>) ORLO_SIZES;
BENCHMARK(BM_Search<SearchMode::DuplicateFlights>) ORLO_SIZES;
BENCHMARK(BM_Search<SearchMode::UnknownAirports>) ORLO_SIZES;
BENCHMARK(BM_SortList)
    ->ArgsProduct({{10'000, 100'000, 1'000'000}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ChangeZone) ORLO_SIZES;

}  // namespace
}  // namespace orlo
