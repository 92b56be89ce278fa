// The flightplan aircraft editor with 10,000 installed aircraft, all of them in the plan too. The limit of
// its commands is one walk over the numbers of all flights, which is measured beside them.

#include <benchmark/benchmark.h>

#include <memory>
#include <numeric>

#include "PlanWorld.h"
#include "editors/PlanAircraftEditor.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr int kInstalled = 10'000;
constexpr std::int32_t kDeleted = 1000;

struct World : test::FakeProgram {
    explicit World(std::int64_t flights) {
        const bench::PlanWorld made(session, flights);
        while (session.fleet.FSAircraftCount() < kInstalled) {
            const std::string title = Concat("Further Aircraft ", session.fleet.FSAircraftCount());
            session.plan.PlanAircrafts.push_back(
                {Concat("AC#", session.plan.PlanAircraftCount() + 1), title, "300", 0});
            session.fleet.FSAircrafts.emplace_back().Title = title;
        }
        plan = session.plan;
    }

    AircraftEditForm& editor = program.forms.frmAircraftEdit;
    Plan plan;
};

World& WorldOf(std::int64_t flights) {
    static std::unique_ptr<World> world;
    if (!world || world->plan.FlightCount() != flights) {
        world.reset();
        world = std::make_unique<World>(flights);
    }
    world->session.plan = world->plan;
    world->inModal = nullptr;
    return *world;
}

void BM_WalkNumbers(benchmark::State& state) {
    const Plan& plan = WorldOf(state.range(0)).plan;
    for (auto _ : state) {
        std::size_t found = 0;
        for (std::int32_t i = 0; i < plan.FlightCount(); ++i)
            found += plan.Flights.At(i).ACNumber == "AC#7" ? 1 : 0;
        benchmark::DoNotOptimize(found);
    }
}

// Copies, lists and the end of the dialog.
void BM_OpenEditor(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(EditPlanAircraft(world.context));
}

// One command on the plan as it is at the opening of the dialog, with these many of its aircraft.
template <typename Prepare>
void Measure(benchmark::State& state, std::int32_t aircraft, Button AircraftEditForm::*command,
             Prepare prepare) {
    World& world = WorldOf(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        world.session.plan = world.plan;
        world.session.plan.PlanAircrafts.resize(static_cast<std::size_t>(aircraft));
        world.inModal = [&] {
            prepare(world);
            state.ResumeTiming();
            world.Press(world.editor.*command);
            state.PauseTiming();
        };
        EditPlanAircraft(world.context);
        state.ResumeTiming();
    }
}

void BM_AddMissing(benchmark::State& state) {
    Measure(state, 0, &AircraftEditForm::cmdAddMissing,
            [&](World& world) { world.editor.lvAircrafts.sorted = state.range(1) != 0; });
}

void BM_Renumber(benchmark::State& state) {
    Measure(state, kInstalled, &AircraftEditForm::cmdNumber,
            [](World& world) { world.world.windows.inputs = {"50000"}; });
}

void BM_ChangeTitle(benchmark::State& state) {
    Measure(state, kInstalled, &AircraftEditForm::cmdTitle,
            [](World& world) { world.world.windows.inputs = {"Another Title"}; });
}

void BM_Substitute(benchmark::State& state) {
    Measure(state, kInstalled, &AircraftEditForm::cmdSubstitute, [](World& world) {
        world.editor.cmAircraft.index = 1;
        world.world.messages.answers = {MessageAnswer::Yes};
    });
}

void BM_DeleteThousand(benchmark::State& state) {
    Measure(state, kInstalled, &AircraftEditForm::cmdDelete, [](World& world) {
        std::vector<std::int32_t> places(kDeleted);
        std::iota(places.begin(), places.end(), 0);
        world.SelectRows(world.editor.lvAircrafts, places);
        world.world.messages.answers = {MessageAnswer::Yes};
    });
}

#define ORLO_SIZES ->Arg(40'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_WalkNumbers) ORLO_SIZES;
BENCHMARK(BM_OpenEditor) ORLO_SIZES;
BENCHMARK(BM_AddMissing)
    ->ArgsProduct({{40'000}, {0, 1}})
    ->ArgNames({"", "sorted"})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Renumber) ORLO_SIZES;
BENCHMARK(BM_ChangeTitle) ORLO_SIZES;
BENCHMARK(BM_Substitute) ORLO_SIZES;
BENCHMARK(BM_DeleteThousand) ORLO_SIZES;

}  // namespace
}  // namespace orlo
