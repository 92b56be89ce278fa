// The airports of a plan: up to a million flights of two to five legs between 22,000 airports. Their limit is
// one walk over the legs, in the same run; the counter "x" is the ratio to it. What is above it at few
// flights is the index over the airports of the scenery, and the list itself.

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>

#include "PlanWorld.h"
#include "simulator/AirportLists.h"

namespace orlo {
namespace {

double SecondsNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Best of a few.
double WalkSeconds(const FlightList& flights) {
    double best = 1e9;
    for (int run = 0; run < 5; ++run) {
        const double start = SecondsNow();
        std::size_t found = 0;
        for (std::int32_t i = 0; i < flights.Count(); ++i) {
            for (const LegView& leg : flights.At(i)) found += leg.Destination == "A1" ? 1 : 0;
        }
        benchmark::DoNotOptimize(found);
        best = std::min(best, SecondsNow() - start);
    }
    return best;
}

void BM_PlanAirports(benchmark::State& state) {
    const auto session = std::make_unique<Session>();
    const bench::PlanWorld made(*session, state.range(0));
    const FlightList& flights = session->plan.Flights;
    const double start = SecondsNow();
    for (auto _ : state) {
        benchmark::DoNotOptimize(FormatPlanAirports(flights, session->scenery.Airports).size());
    }
    const double spent = (SecondsNow() - start) / static_cast<double>(state.iterations());
    state.counters["x"] = spent / WalkSeconds(flights);
}

BENCHMARK(BM_PlanAirports)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orlo
