// The corrections of a whole plan. Their limit is walking the legs and copying the rows, which is measured
// beside them.

#include <benchmark/benchmark.h>

#include <memory>

#include "PlanWorld.h"
#include "operations/CheckFlightTimes.h"
#include "operations/CorrectFlightLevels.h"
#include "operations/CorrectFlightTimes.h"
#include "operations/RemoveMinus.h"
#include "shuffler/ShuffleWorld.h"

namespace orlo {
namespace {

struct World {
    explicit World(std::int64_t flights) { bench::PlanWorld world(session, flights); }
    Session session;
};

World& WorldOf(std::int64_t flights) {
    static std::unique_ptr<World> world;
    if (!world || world->session.plan.FlightCount() != flights) {
        world.reset();
        world = std::make_unique<World>(flights);
    }
    return *world;
}

template <typename Correct>
void Measure(benchmark::State& state, Correct correct) {
    Session& session = WorldOf(state.range(0)).session;
    const FlightList plan = session.plan.Flights;
    for (auto _ : state) {
        session.plan.Flights = plan;
        correct(session);
    }
    session.plan.Flights = plan;
}

void BM_CopyRows(benchmark::State& state) {
    Measure(state, [](Session& session) {
        session.plan.Flights.Rewrite([](std::int32_t, const FlightView& flight, LentFlight& changed) {
            changed = flight;
            return true;
        });
    });
}

void BM_CheckFlightTimes(benchmark::State& state) {
    Measure(state, [](Session& session) {
        std::int32_t wrong = 0;
        for (std::int32_t i = 0; i < session.plan.FlightCount(); ++i) {
            wrong += !CheckFlightTimes(session.plan.Flights.At(i), session.switches.TATime,
                                       session.switches.MaxTATime)
                          .Right;
        }
        benchmark::DoNotOptimize(wrong);
    });
}

void BM_CorrectFlightTimes(benchmark::State& state) {
    Measure(state, [](Session& session) { CorrectFlightTimes(session.plan, session.switches); });
}

void BM_CorrectFlightLevels(benchmark::State& state) {
    test::SeededRandom random;
    Measure(state, [&random](Session& session) {
        CorrectFlightLevels(session.plan, session.fleet, session.rules.FlightLevelRules, random);
    });
}

void BM_RemoveMinus(benchmark::State& state) {
    Measure(state, [](Session& session) { RemoveMinusFromTailNumbers(session.plan); });
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_CopyRows) ORLO_SIZES;
BENCHMARK(BM_CheckFlightTimes) ORLO_SIZES;
BENCHMARK(BM_CorrectFlightTimes) ORLO_SIZES;
BENCHMARK(BM_CorrectFlightLevels) ORLO_SIZES;
BENCHMARK(BM_RemoveMinus) ORLO_SIZES;

}  // namespace
}  // namespace orlo
