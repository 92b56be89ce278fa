// The drawing of a chart with a day of 20,000 steps in eight series, onto an image of 1000 by 700. Its limit
// is filling the image once, which is measured beside it. A resize draws the chart anew at each size.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "desktop/ChartPainter.h"

namespace orlo {
namespace {

constexpr std::size_t kSteps = 20'000;
constexpr std::size_t kSeries = 8;
constexpr QSize kSize(1000, 700);

// The application object that fonts need, on no screen.
void HaveApplication() {
    if (qApp != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "orlo-bench";
    static char* words[] = {name, nullptr};
    static QGuiApplication application(count, words);
}

ChartContent BusyDay() {
    ChartPlot hours;
    hours.title = "Arrivals and departures";
    ChartPlot steps;
    steps.title = "Aircraft on ground";
    steps.places = ChartPlaces::Time;
    steps.last = 86400;
    steps.levels = {{"Stands", 281}};
    for (int hour = 0; hour < 24; ++hour) hours.names.push_back(std::to_string(hour));
    for (const char* name : {"Arrivals", "Departures"})
        hours.series.push_back({SeriesKind::Bars, name, std::vector<double>(24, 40)});
    for (std::size_t i = 0; i < kSteps; ++i)
        steps.at.push_back(static_cast<double>(i) * 86400 / static_cast<double>(kSteps));
    std::uint32_t draw = 1;
    for (std::size_t series = 0; series < kSeries; ++series) {
        double value = 40;
        steps.series.push_back({SeriesKind::Steps, "Class " + std::to_string(series), {}});
        for (std::size_t i = 0; i < kSteps; ++i) {
            draw = draw * 1664525 + 1013904223;
            value += draw >> 31 != 0 || value == 0 ? 1 : -1;
            steps.series[series].values.push_back(value);
        }
    }
    ChartContent content;
    content.title = "A busy day";
    content.plots = {hours, steps};
    return content;
}

void FillTheImage(benchmark::State& state) {
    HaveApplication();
    QImage image(kSize, QImage::Format_RGB32);
    for (auto _ : state) {
        image.fill(Qt::white);
        benchmark::DoNotOptimize(image.bits());
    }
}
BENCHMARK(FillTheImage)->Unit(benchmark::kMillisecond);

void DrawABusyDay(benchmark::State& state) {
    HaveApplication();
    const ChartData chart(BusyDay());
    QImage image(kSize, QImage::Format_RGB32);
    int width = kSize.width();
    for (auto _ : state) {
        // Each time a little narrower, as while a window is resized.
        width = width > kSize.width() / 2 ? width - 1 : kSize.width();
        image.fill(Qt::white);
        QPainter painter(&image);
        const QRectF room(0, 0, width, kSize.height());
        DrawChart(painter, chart, LayOutChart(chart, painter.font(), room, 0), PictureColours());
    }
}
BENCHMARK(DrawABusyDay)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orlo
