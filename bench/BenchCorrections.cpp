// The corrections of a whole plan. Their limit is walking the legs and copying the rows, which is measured
// beside them.

#include <benchmark/benchmark.h>

#include <memory>
#include <random>

#include "core/ClockTime.h"
#include "core/Text.h"
#include "operations/CheckFlightTimes.h"
#include "operations/CorrectFlightLevels.h"
#include "operations/CorrectFlightTimes.h"
#include "operations/RemoveMinus.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

constexpr int kAircraft = 3000;
constexpr int kAirports = 22000;

// A plan of so many flights of two to five legs, most of them with faults, of aircraft of all sizes.
class World {
  public:
    explicit World(std::int64_t flights) {
        session.FlightLevelRules = {{-1, -1, 0, 179, 35, 175, 20},     {-1, -1, 180, 359, 45, 165, 20},
                                    {0, 250, 0, 179, 70, 230, 20},     {0, 250, 180, 359, 80, 220, 20},
                                    {251, 9999, 0, 179, 250, 410, 20}, {251, 9999, 180, 359, 260, 400, 20}};
        for (int i = 0; i < kAirports; ++i) AddAirport(i);
        for (int i = 0; i < kAircraft; ++i) AddAircraft(i);
        session.Flights.Reserve(static_cast<std::int32_t>(flights));
        for (std::int64_t i = 0; i < flights; ++i) AddFlight();
    }

    Session session;

  private:
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }

    static std::string Code(int airport) { return Concat("A", airport); }

    void AddAirport(int number) {
        session.PlanAirportIndex.Add(Code(number), number);
        session.PlanAirports.push_back({Code(number), Concat("N", Below(80), "* ", Below(60), ".50'"),
                                        Concat("W", Below(180), "* ", Below(60), ".20'"), "364"});
    }

    void AddAircraft(int number) {
        FSAircraft aircraft;
        aircraft.Title = Concat("Aircraft ", number);
        aircraft.MinFL = 0;
        aircraft.MaxFL = 250 + number % 200;
        session.FSAircrafts.push_back(aircraft);
        session.PlanAircrafts.push_back({Concat("AC#", number + 1), aircraft.Title, "300", 0});
    }

    void AddFlight() {
        const bool weekly = Below(2) == 0;
        Flight flight{Concat("AC#", 1 + Below(kAircraft)),
                      Concat("N-", Below(90000)),
                      "50%",
                      weekly ? "WEEK" : "24Hr",
                      Below(4) == 0 ? "VFR" : "IFR",
                      {},
                      false};
        std::int32_t time = Below(weekly ? kSecondsPerWeek : kSecondsPerDay);
        const auto next = [&](std::int32_t seconds) {
            time = (time + seconds) % kSecondsPerWeek;
            const std::int32_t clock = time % kSecondsPerDay;
            return weekly ? FormatWeekTime({time / kSecondsPerDay, clock}) : FormatClockTime(clock);
        };
        for (int i = 0, legs = 2 + Below(4); i < legs; ++i) {
            const std::string depart = next(Below(2 * kSecondsPerHour));
            const std::string arrive = next(1200 + Below(3 * kSecondsPerHour));
            flight.Legs.push_back(
                {depart, arrive, false, "350", "F", Concat(1000 + Below(9000)), Code(Below(kAirports))});
        }
        session.Flights.Append(flight);
    }

    std::mt19937 engine_{1};
};

World& WorldOf(std::int64_t flights) {
    static std::unique_ptr<World> world;
    if (!world || world->session.FlightCount() != flights) {
        world.reset();
        world = std::make_unique<World>(flights);
    }
    return *world;
}

template <typename Correct>
void Measure(benchmark::State& state, Correct correct) {
    Session& session = WorldOf(state.range(0)).session;
    const FlightList plan = session.Flights;
    for (auto _ : state) {
        session.Flights = plan;
        correct(session);
    }
    session.Flights = plan;
}

void BM_CopyRows(benchmark::State& state) {
    Measure(state, [](Session& session) {
        FlightList copy;
        copy.Reserve(session.FlightCount());
        for (std::int32_t i = 0; i < session.FlightCount(); ++i) copy.AppendFrom(session.Flights, i);
        session.Flights = std::move(copy);
    });
}

void BM_CheckFlightTimes(benchmark::State& state) {
    Measure(state, [](Session& session) {
        std::int32_t wrong = 0;
        for (std::int32_t i = 0; i < session.FlightCount(); ++i) {
            wrong += !CheckFlightTimes(session.Flights.At(i), session.TATime, session.MaxTATime).Right;
        }
        benchmark::DoNotOptimize(wrong);
    });
}

void BM_CorrectFlightTimes(benchmark::State& state) {
    Measure(state, CorrectFlightTimes);
}

void BM_CorrectFlightLevels(benchmark::State& state) {
    test::SeededRandom random;
    Measure(state, [&random](Session& session) { CorrectFlightLevels(session, random); });
}

void BM_RemoveMinus(benchmark::State& state) {
    Measure(state, RemoveMinusFromTailNumbers);
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_CopyRows) ORLO_SIZES;
BENCHMARK(BM_CheckFlightTimes) ORLO_SIZES;
BENCHMARK(BM_CorrectFlightTimes) ORLO_SIZES;
BENCHMARK(BM_CorrectFlightLevels) ORLO_SIZES;
BENCHMARK(BM_RemoveMinus) ORLO_SIZES;

}  // namespace
}  // namespace orlo
