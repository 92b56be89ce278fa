#include <benchmark/benchmark.h>

#include "core/Text.h"
#include "mainwindow/AircraftTrees.h"

namespace orlo {
namespace {

constexpr std::int32_t kManyRows = 1000000;

// Installed aircraft in `airlines` airlines, every second one used by the plan.
void MakeWorld(Session& session, std::int32_t count, std::int32_t airlines) {
    for (std::int32_t i = 0; i < count; ++i) {
        FSAircraft aircraft;
        aircraft.Title = Concat("Traffic Airbus A3", i % 4, "0 number ", i);
        aircraft.Airline = Concat("Airline ", i % airlines);
        aircraft.UIManufacturer = Concat("Maker ", i % 20);
        aircraft.UIType = Concat("Type ", i % 100);
        aircraft.Class = i % 9;
        if (i % 2 == 0) session.plan.PlanAircrafts.push_back({Concat("AC#", i + 1), aircraft.Title, "450"});
        session.fleet.FSAircrafts.push_back(std::move(aircraft));
    }
    Flight flight;
    flight.Legs.resize(2);
    session.plan.Flights.Append(flight);
    session.plan.PlanLoaded = true;
}

void SetViews(MainForm& form, std::int32_t shufflerView, std::int32_t moveView) {
    form.cmShufflerView.index = shufflerView;
    form.cmMoveView.index = moveView;
}

void BenchFillTrees(benchmark::State& state) {
    Session session;
    MakeWorld(session, static_cast<std::int32_t>(state.range(0)), static_cast<std::int32_t>(state.range(1)));
    MainForm form;
    SetViews(form, 1, 1);
    for (auto _ : state) FillAircraftTrees(form, session);
}
BENCHMARK(BenchFillTrees)
    ->ArgNames({"aircraft", "airlines"})
    ->Args({1000, 50})
    ->Args({10000, 300})
    ->Args({10000, 1})
    ->Unit(benchmark::kMillisecond);

void BenchChangeShufflerView(benchmark::State& state) {
    Session session;
    MakeWorld(session, static_cast<std::int32_t>(state.range(0)), static_cast<std::int32_t>(state.range(1)));
    MainForm form;
    SetViews(form, 1, 1);
    FillAircraftTrees(form, session);
    for (auto _ : state) {
        form.cmShufflerView.index = 3 - form.cmShufflerView.index;
        ChangeShufflerView(form, session);
    }
}
BENCHMARK(BenchChangeShufflerView)
    ->ArgNames({"aircraft", "airlines"})
    ->Args({1000, 50})
    ->Args({10000, 1})
    ->Unit(benchmark::kMillisecond);

// Rows as a search of a large plan gives them.
void FillRows(ListView& list) {
    ListRow row;
    row.texts.resize(list.columns.size());
    list.Reserve(kManyRows);
    for (std::int32_t i = 0; i < kManyRows; ++i) {
        const auto scattered = static_cast<std::int32_t>((static_cast<std::int64_t>(i) * 7919) % kManyRows);
        row.tag = std::to_string(i);
        row.key = Concat('#', row.tag);
        row.texts[0] = Concat("Lufthansa Regional ", scattered % 300);
        row.texts[1] = Concat("Traffic Airbus A320 ", scattered % 2000);
        row.texts[2] = std::to_string(scattered % 9000);
        row.texts[3] = Concat("D-A", scattered);
        row.texts[4] = "EDDF";
        row.texts[5] = "LIRF - EGLL - LEMD";
        row.texts[6] = "24Hr";
        row.texts[7] = "08:15:00";
        row.texts[8] = "21:45:00";
        row.texts[9] = "IFR";
        row.texts[10] = "330";
        row.texts[11] = "05%";
        list.Add(row);
    }
}

void BenchFillList(benchmark::State& state) {
    MainForm form;
    for (auto _ : state) {
        form.lvExPreview.Clear();
        FillRows(form.lvExPreview);
    }
    state.counters["bytes/row"] = static_cast<double>(form.lvExPreview.MemoryBytes()) / kManyRows;
}
BENCHMARK(BenchFillList)->Unit(benchmark::kMillisecond);

void BenchSortList(benchmark::State& state) {
    MainForm form;
    ListView& list = form.lvExPreview;
    FillRows(list);
    for (auto _ : state) list.SortByColumn(static_cast<std::int32_t>(state.range(0)));
}
BENCHMARK(BenchSortList)->ArgName("column")->Arg(0)->Arg(3)->Arg(7)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orlo
