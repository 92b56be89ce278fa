// The mover, the timetable and the randomisers on real traffic where a world of it lies beside the checkout,
// repeated to the size, else on a made plan. Their limit is one walk over all legs, which is measured beside
// them.

#include <benchmark/benchmark.h>

#include <fstream>
#include <map>
#include <memory>
#include <sstream>

#include "PlanWorld.h"
#include "RealWorld.h"
#include "core/FlightplanFile.h"
#include "core/PlanSideFiles.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/PlanViews.h"
#include "mainwindow/TreeSelection.h"
#include "operations/MoveTraffic.h"
#include "operations/Mover.h"
#include "operations/Randomise.h"
#include "operations/StatisticsWindow.h"
#include "operations/Timetable.h"
#include "operations/TimetableEvents.h"
#include "operations/TimetableText.h"
#include "platform/common/SystemRandom.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

std::string RealPlanFile(std::string_view name) {
    std::ifstream file(bench::RealWorldFolder() / "plan" / name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

struct World : test::FakeProgram {
    explicit World(std::int64_t flights) {
        if (!ReadReal(flights)) bench::PlanWorld made(session, flights);
        FillAircraftTrees(form, session);
        ResetMoverView(context);
        ResetTimetableView(context);
        session.plan.PlanLoaded = true;
        session.switches.Undo = true;
        plan = session.plan.Flights;
        FindBusiest();
    }

    bool ReadReal(std::int64_t flights) {
        const std::string text = RealPlanFile("FlightPlans.txt");
        if (text.empty()) return false;
        world.files.files["/plan/Aircraft.txt"] = RealPlanFile("Aircraft.txt");
        world.files.files["/plan/Airports.txt"] = RealPlanFile("Airports.txt");
        session.plan.FlightplanPath = "/plan/FlightPlans.txt";
        ReadPlanAirports(session.plan, world.services);
        ReadPlanAircraft(session.plan, world.services);
        while (session.plan.FlightCount() < flights) {
            for (const std::string_view line : SplitText(text, '\n')) {
                if (session.plan.FlightCount() == flights) break;
                AppendFlightplanLine(line.substr(0, line.find('\r')), session.plan.Flights);
            }
        }
        for (const PlanAircraft& aircraft : session.plan.PlanAircrafts) {
            FSAircraft& installed = session.fleet.FSAircrafts.emplace_back();
            installed.Title = aircraft.Title;
            installed.Airline = "Sample Airline";
            installed.UIManufacturer = "Maker";
            installed.UIType = "Type";
            installed.Class = kClassLargeJet;
        }
        return true;
    }

    void FindBusiest() {
        std::map<std::string_view, int> arrivals;
        for (std::int32_t i = 0; i < plan.Count(); ++i) {
            for (const LegView& leg : plan.At(i)) ++arrivals[leg.Destination];
        }
        for (const auto& [code, count] : arrivals) {
            if (busiest.empty() || count > arrivals[busiest]) busiest = code;
            all.append(code).append(",");
        }
    }

    FlightList plan;
    std::string busiest;
    std::string all;
};

World& WorldOf(std::int64_t flights) {
    static std::unique_ptr<World> world;
    if (!world || world->session.plan.FlightCount() != flights) {
        world.reset();
        world = std::make_unique<World>(flights);
    }
    world->session.plan.Flights = world->plan;
    world->world.messages.shown.clear();
    return *world;
}

void BM_WalkLegs(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    for (auto _ : state) {
        std::size_t found = 0;
        for (std::int32_t i = 0; i < world.plan.Count(); ++i) {
            for (const LegView& leg : world.plan.At(i)) found += leg.Destination == world.busiest ? 1 : 0;
        }
        benchmark::DoNotOptimize(found);
    }
}

// With one leaf checked and with all.
void BM_Move(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    world.form.cmSource.SelectText(world.busiest);
    TreeView& tree = world.form.tvMoveAircrafts;
    DeselectAll(world.form, tree);
    const auto leaf = std::find_if(tree.nodes.begin(), tree.nodes.end(),
                                   [](const TreeNode& node) { return !node.tag.empty(); });
    leaf->checked = true;
    if (state.range(1) != 0) SelectAll(world.form, tree);
    world.form.MovePercent = 30;
    for (auto _ : state) {
        world.session.plan.Flights = world.plan;
        ExecuteAction(world.context);
    }
}

void ShowEvents(benchmark::State& state, World& world, const std::string& airports) {
    MainForm& form = world.form;
    form.txtTTAirport.text = airports;
    for (auto _ : state) ShowTimetable(world.context);
    const auto& rows = static_cast<const TimetableRows&>(*form.lvTimetable.Source());
    state.counters["rows"] = static_cast<double>(rows.Count());
    state.counters["bytes/row"] =
        static_cast<double>(rows.MemoryBytes() + form.lvTimetable.MemoryBytes()) / rows.Count();
}

void BM_TimetableOfBusiest(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    ShowEvents(state, world, world.busiest);
}

void BM_TimetableOfAll(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    ShowEvents(state, world, world.all);
}

void BM_ChangeTimetableZone(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    world.form.txtTTAirport.text = world.all;
    ShowTimetable(world.context);
    for (auto _ : state) {
        world.form.cmTTZone.index = 1 - world.form.cmTTZone.index % 2;
        OnTimetableZone(world.context);
    }
}

void BM_TimetableText(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    world.form.txtTTAirport.text = world.all;
    ShowTimetable(world.context);
    for (auto _ : state) benchmark::DoNotOptimize(TimetableText(world.context).size());
}

void BM_TimetableStatistics(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    world.form.txtTTAirport.text = world.all;
    ShowTimetable(world.context);
    for (auto _ : state) ShowTimetableStatistics(world.context);
}

template <void (*Change)(Plan&, RandomSource&)>
void BM_Randomise(benchmark::State& state) {
    World& world = WorldOf(state.range(0));
    SystemRandom random;
    for (auto _ : state) {
        world.session.plan.Flights = world.plan;
        Change(world.session.plan, random);
    }
}
void Percent(Plan& plan, RandomSource& random) {
    RandomizePercent(plan, {1, 99}, random);
}
void NumbersInPairs(Plan& plan, RandomSource& random) {
    RandomizeFlightNumbers(plan, {1, 999}, true, random);
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_WalkLegs) ORLO_SIZES;
BENCHMARK(BM_Move)
    ->ArgsProduct({{10'000, 100'000, 1'000'000}, {0, 1}})
    ->ArgNames({"", "all"})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TimetableOfBusiest) ORLO_SIZES;
BENCHMARK(BM_TimetableOfAll) ORLO_SIZES;
BENCHMARK(BM_ChangeTimetableZone) ORLO_SIZES;
BENCHMARK(BM_TimetableText) ORLO_SIZES;
BENCHMARK(BM_TimetableStatistics) ORLO_SIZES;
BENCHMARK(BM_Randomise<Percent>) ORLO_SIZES;
BENCHMARK(BM_Randomise<NumbersInPairs>) ORLO_SIZES;
BENCHMARK(BM_Randomise<RandomizePlanOrder>) ORLO_SIZES;

}  // namespace
}  // namespace orlo
