// The list of flights found, drawn from its source. What the list costs is told apart from what making the
// texts costs by BM_MakeTexts, which makes every text of one column once.

#include <benchmark/benchmark.h>

#include <memory>

#include "core/Text.h"
#include "forms/MainForm.h"

namespace orlo {
namespace {

constexpr std::int32_t kTitle = 1;
constexpr std::int32_t kRegistration = 3;
constexpr std::int32_t kLegs = 5;
constexpr std::int32_t kPeriod = 6;
constexpr std::int32_t kDepart = 7;
constexpr std::int32_t kArrive = 8;

// Rows as a search of a large plan gives them, scattered so that no column comes sorted.
struct FlightRows : RowSource {
    std::vector<std::string> titles;
    std::vector<std::string> airports;

    FlightRows() {
        for (int i = 0; i < 3000; ++i) titles.push_back(Concat("Traffic Airbus A3", i % 4, "0 number ", i));
        for (int i = 0; i < 26 * 26; ++i) {
            airports.push_back({'E', 'D', static_cast<char>('A' + i / 26), static_cast<char>('A' + i % 26)});
        }
    }

    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override {
        const auto scattered = static_cast<std::uint32_t>(row) * 2654435761u;
        const auto airport = [&](std::uint32_t shift) -> const std::string& {
            return airports[(scattered >> shift) % airports.size()];
        };
        switch (column) {
            case kTitle:
                out.append(titles[(scattered >> 8) % titles.size()]);
                return;
            case kRegistration:
                out.append("N").append(std::to_string(scattered)).append("AB");
                return;
            case kLegs:
                out.append(airport(0)).append(" - ").append(airport(6)).append(" - ").append(airport(12));
                return;
            case kPeriod:
                out.append((scattered >> 20) % 3 == 0 ? "Week" : "24Hr");
                return;
            case kArrive:
                out.append("01234567890123456789012345678901234567890123456789");
                out.append(std::to_string(scattered));
                return;
            default:
                out.append(Concat((scattered >> 9) % 24 + 10, ":", (scattered >> 14) % 60 + 10, ":00"));
        }
    }
};

void BM_MakeTexts(benchmark::State& state) {
    const FlightRows rows;
    std::string text;
    for (auto _ : state) {
        for (std::int32_t i = 0; i < state.range(0); ++i) {
            text.clear();
            rows.AppendText(i, static_cast<std::int32_t>(state.range(1)), text);
            benchmark::DoNotOptimize(text.data());
        }
    }
}

void BM_ShowSource(benchmark::State& state) {
    MainForm form;
    const auto rows = std::make_shared<FlightRows>();
    for (auto _ : state) form.lvExPreview.ShowSource(rows, static_cast<std::int32_t>(state.range(0)));
    state.counters["bytes/row"] =
        static_cast<double>(form.lvExPreview.MemoryBytes()) / static_cast<double>(state.range(0));
}

void BM_SortSource(benchmark::State& state) {
    MainForm form;
    ListView& list = form.lvExPreview;
    list.ShowSource(std::make_shared<FlightRows>(), static_cast<std::int32_t>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        list.SortByColumn(state.range(1) == kLegs ? kRegistration : kLegs);
        state.ResumeTiming();
        list.SortByColumn(static_cast<std::int32_t>(state.range(1)));
    }
}

void BM_SelectAll(benchmark::State& state) {
    MainForm form;
    ListView& list = form.lvExPreview;
    list.ShowSource(std::make_shared<FlightRows>(), static_cast<std::int32_t>(state.range(0)));
    list.SortByColumn(kLegs);
    for (auto _ : state) {
        list.SelectAll(true);
        benchmark::DoNotOptimize(list.SelectedRanges().size());
        benchmark::DoNotOptimize(list.SelectedPlaces().size());
    }
}

void BM_RemoveHalf(benchmark::State& state) {
    MainForm form;
    ListView& list = form.lvExPreview;
    const auto rows = std::make_shared<FlightRows>();
    for (auto _ : state) {
        state.PauseTiming();
        list.ShowSource(rows, static_cast<std::int32_t>(state.range(0)));
        for (std::int32_t place = 0; place < list.Count(); ++place) list.Select(place, place % 2 == 0);
        state.ResumeTiming();
        list.Remove(list.SelectedPlaces());
    }
}

#define ORLO_SIZES ->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
#define ORLO_COLUMNS                                                                                   \
    ->ArgNames({"rows", "column"})                                                                     \
        ->ArgsProduct(                                                                                 \
            {{10'000, 100'000, 1'000'000}, {kTitle, kRegistration, kLegs, kPeriod, kDepart, kArrive}}) \
        ->Unit(benchmark::kMillisecond)
BENCHMARK(BM_MakeTexts) ORLO_COLUMNS;
BENCHMARK(BM_ShowSource) ORLO_SIZES;
BENCHMARK(BM_SortSource) ORLO_COLUMNS;
BENCHMARK(BM_SelectAll) ORLO_SIZES;
BENCHMARK(BM_RemoveHalf) ORLO_SIZES;

}  // namespace
}  // namespace orlo
