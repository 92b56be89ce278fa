// The window of the shares, opened on many sets and with another set chosen. The limit of both is one plain
// walk over all sets and their airlines, which is measured beside them.

#include <benchmark/benchmark.h>

#include "core/Text.h"
#include "shuffler/SharesWindow.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr int kAirlinesPerSet = 12;
constexpr int kGlobalAirlines = 300;

AirlineSet SetOf(std::string name, int airlines) {
    AirlineSet set;
    set.Name = std::move(name);
    for (int i = 0; i < airlines; ++i) {
        AirlineEntry& entry = set.Airlines.emplace_back();
        entry.Name = Concat("Sample Airline ", i);
        entry.PlannedPercent = 100 / airlines;
        entry.Flights = i;
        set.Flights += i;
    }
    return set;
}

struct World : test::FakeProgram {
    explicit World(std::int64_t count) {
        sets.Global = SetOf("", kGlobalAirlines);
        for (std::int64_t i = 1; i < count; ++i)
            sets.Airports.push_back(SetOf(Concat("Airport ", i), kAirlinesPerSet));
        session.shuffle.HasResult = true;
    }
    AirlineSets& sets = session.shuffle.RunAirlines;
    SharesForm& shares = program.forms.frmShares;
};

void BM_WalkSets(benchmark::State& state) {
    const World world(state.range(0));
    for (auto _ : state) {
        std::size_t found = 0;
        for (const AirlineSet& set : world.sets.Airports) {
            for (const AirlineEntry& entry : set.Airlines)
                found += entry.Name.size() + static_cast<std::size_t>(entry.Flights);
        }
        benchmark::DoNotOptimize(found);
    }
}

void BM_OpenShares(benchmark::State& state) {
    World world(state.range(0));
    for (auto _ : state) ShowShares(world.context);
}

void BM_ChooseSet(benchmark::State& state) {
    World world(state.range(0));
    ShowShares(world.context);
    world.shares.lvSets.current = world.shares.lvSets.Count() - 1;
    for (auto _ : state) ShowSharesOfSet(world.context);
}

#define ORLO_SETS ->Arg(250)->Arg(2'000)->Arg(20'000)->Unit(benchmark::kMicrosecond)
BENCHMARK(BM_WalkSets) ORLO_SETS;
BENCHMARK(BM_OpenShares) ORLO_SETS;
BENCHMARK(BM_ChooseSet) ORLO_SETS;

}  // namespace
}  // namespace orlo
