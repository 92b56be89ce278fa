#include <gtest/gtest.h>

#include <QAccessible>
#include <QBuffer>
#include <QHelpEvent>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <cmath>
#include <limits>

#include "desktop/AxisSteps.h"
#include "desktop/ChartPainter.h"
#include "desktop/ChartWidget.h"
#include "desktop/ColumnRanges.h"
#include "desktop/PlotLabels.h"
#include "desktop/RunwayLayout.h"
#include "qt/DesktopProgram.h"

#ifdef ORLO_SVG
#include <QSvgRenderer>
#endif

namespace orlo {
namespace {

constexpr std::size_t kManyPlaces = 20'000;

ChartPlot Plot(SeriesKind kind, std::size_t series, const std::vector<std::string>& names) {
    ChartPlot plot;
    plot.placesTitle = "Place";
    plot.names = names;
    for (std::size_t i = 0; i < series; ++i) {
        plot.series.push_back({kind, "S" + std::to_string(i), {}});
        for (std::size_t place = 0; place < names.size(); ++place)
            plot.series[i].values.push_back(static_cast<double>(10 + 3 * i + 7 * place));
    }
    return plot;
}

// Steps over a day, as many as a busy airport has, up and down between 40 and 60.
ChartPlot DayOfSteps(std::size_t count, std::size_t series) {
    ChartPlot plot;
    plot.places = ChartPlaces::Time;
    plot.last = 86400;
    for (std::size_t i = 0; i < count; ++i)
        plot.at.push_back(std::floor(static_cast<double>(i) * 86400 / static_cast<double>(count)));
    for (std::size_t i = 0; i < series; ++i) {
        plot.series.push_back({SeriesKind::Steps, "S" + std::to_string(i), {}});
        for (std::size_t place = 0; place < count; ++place)
            plot.series[i].values.push_back(static_cast<double>(40 + place * 7919 % 21));
    }
    return plot;
}

ChartContent Of(std::vector<ChartPlot> plots) {
    ChartContent content;
    content.title = "Title";
    content.note = "Note";
    content.plots = std::move(plots);
    return content;
}

ChartContent Runways() {
    ChartContent content;
    content.lengthUnit = "m";
    content.runways = {{90, 2743, 46, "Concrete", {{"09L", false}, {"27R", false}}},
                       {270, 3624, 0, "Asphalt", {{"27L", true}, {"09R", false}}},
                       {0, 900, 30, "Grass", {{"36", false}, {"18", false}}}};
    return content;
}

const std::vector<std::string> kHours = {"00", "01", "02", "03"};
const std::vector<std::string> kAirlines = {"An airline of a long name", "Another one", "The third of them"};

struct Drawn {
    Drawn(const ChartContent& content, QSize size) : chart(content), image(size, QImage::Format_RGB32) {
        boxes = LayOutChart(chart, font, QRectF(QPointF(), size), 0);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(font);
        DrawChart(painter, chart, boxes, PictureColours());
    }

    // Rows from the top until this colour comes in the column; the image's height where it doesn't.
    int FirstRow(int column, const QColor& colour) const {
        int row = 0;
        while (row < image.height() && image.pixelColor(column, row) != colour) ++row;
        return row;
    }

    ChartData chart;
    QFont font;
    ChartBoxes boxes;
    QImage image;
};

TEST(Chart, TheReductionKeepsWhatEachColumnsExtremesAre) {
    const ChartPlot plot = DayOfSteps(kManyPlaces, 1);
    const std::vector<double>& values = plot.series[0].values;
    for (const int count : {1, 7, 800, 30'000}) {
        std::vector<int> columns;
        for (std::size_t i = 0; i < kManyPlaces; ++i)
            columns.push_back(static_cast<int>(i * static_cast<std::size_t>(count) / kManyPlaces));
        const std::vector<ColumnRange> ranges = ReduceSteps(columns, values, count);
        ASSERT_EQ(ranges.size(), static_cast<std::size_t>(count));
        std::size_t next = 0;
        for (int column = 0; column < count; ++column) {
            // What it begins with, and what comes within it.
            double least = values[next == 0 ? 0 : next - 1];
            double greatest = least;
            for (; next < kManyPlaces && columns[next] == column; ++next) {
                least = std::min(least, values[next]);
                greatest = std::max(greatest, values[next]);
            }
            const ColumnRange& range = ranges[static_cast<std::size_t>(column)];
            ASSERT_EQ(range.least, least) << column << " of " << count;
            ASSERT_EQ(range.greatest, greatest) << column << " of " << count;
        }
    }
    const std::vector<ColumnRange> cut =
        ReduceSteps(std::vector{-1, -1, 2, 9}, std::vector{5.0, 8.0, 3.0, 99.0}, 4);
    EXPECT_EQ(cut[0].least, 8);
    EXPECT_EQ(cut[1].greatest, 8);
    EXPECT_EQ(cut[2].greatest - cut[2].least, 5);
    EXPECT_EQ(cut[3].greatest, 3);
    EXPECT_TRUE(ReduceSteps(std::vector{2}, std::vector{5.0}, 4)[1].Empty());
}

TEST(Chart, APeakOfOneStepAmong20000IsSeenInEverySeriesWhateverItsDashes) {
    for (std::size_t series = 0; series < kChartStyles; ++series) {
        for (const std::size_t place : {10'007u, 12'345u, 15'001u}) {
            ChartPlot plot = DayOfSteps(kManyPlaces, kChartStyles);
            plot.series[series].values[place] = 1000;
            const Drawn drawn(Of({plot}), {900, 400});
            const PlotBox& box = drawn.boxes.plots[0];
            const int column = static_cast<int>(box.X(plot.at[place]));
            const int row = drawn.FirstRow(column, SeriesColour(PictureColours(), series));
            EXPECT_NEAR(row, box.Y(1000), 6) << series << " at " << place;
        }
    }
}

TEST(Chart, AnyContentIsDrawnAtAnySizeAndAllItsMarksLieWithin) {
    constexpr double kHuge = std::numeric_limits<double>::max();
    ChartPlot odd = Plot(SeriesKind::Bars, 2, kHours);
    odd.series[0].values = {std::nan(""), -5, HUGE_VAL};  // and one too few
    ChartPlot huge = Plot(SeriesKind::Bars, 5, kHours);
    for (ChartSeries& series : huge.series) series.values.assign(4, kHuge / 2);
    ChartPlot zeros = DayOfSteps(5, 2);
    for (ChartSeries& series : zeros.series) series.values.assign(5, 0);
    ChartPlot level = DayOfSteps(5, 2);
    level.levels = {{"Stands", 281}, {"None", std::nan("")}, {"Below", -1}};
    ChartPlot bars = DayOfSteps(kManyPlaces, 5);
    for (ChartSeries& series : bars.series) series.kind = SeriesKind::Bars;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kManyPlaces; ++i) names.push_back("Airline " + std::to_string(i));
    ChartContent noLength = Runways();
    for (ChartRunway& runway : noLength.runways) runway.length = runway.width = 0;
    const ChartContent contents[] = {{},
                                     Of({}),
                                     Of({{}}),
                                     Of({Plot(SeriesKind::Bars, 0, kHours)}),
                                     Of({Plot(SeriesKind::Bars, 2, {"00"})}),
                                     Of({DayOfSteps(1, 1)}),
                                     Of({odd, zeros}),
                                     Of({huge, level}),
                                     Of({bars, Plot(SeriesKind::Steps, 2, kHours)}),
                                     Of({Plot(SeriesKind::Bars, 2, names)}),
                                     Of({Plot(SeriesKind::Bars, 2, names), DayOfSteps(kManyPlaces, 8)}),
                                     Runways(),
                                     noLength};
    for (const ChartContent& content : contents) {
        for (const QSize size : {QSize(1, 1), QSize(2, 300), QSize(300, 2), QSize(500, 400)}) {
            const Drawn drawn(content, size);
            const std::string where =
                testing::PrintToString(&content - contents) + " " + std::to_string(size.width());
            for (const PlotBox& box : drawn.boxes.plots) {
                EXPECT_GE(box.inner.width(), 1) << where;
                EXPECT_TRUE(std::isfinite(box.Y(box.facts.greatest))) << where;
            }
            for (int x = 0; x < size.width(); x += 23) {
                for (int y = 0; y < size.height(); y += 23) {
                    const auto point = PointUnder(drawn.chart, drawn.boxes, drawn.font, QPointF(x, y));
                    if (!point) continue;
                    const QRectF mark = MarkOf(drawn.chart, drawn.boxes, drawn.font, *point).boundingRect();
                    EXPECT_TRUE(mark.intersects(QRectF(QPointF(), size).adjusted(-9, -9, 9, 9))) << where;
                    EXPECT_FALSE(PointText(drawn.chart, *point).isEmpty()) << where;
                }
            }
            EXPECT_GT(NaturalHeight(drawn.chart, drawn.font, size.width()), 0) << where;
        }
    }
}

TEST(Chart, AllPlotsHaveTheSameSidesAndNoLabelsOverlap) {
    const Drawn drawn(Of({Plot(SeriesKind::Bars, 2, kHours), DayOfSteps(100, 8)}), {900, 640});
    EXPECT_EQ(drawn.boxes.plots[0].inner.left(), drawn.boxes.plots[1].inner.left());
    EXPECT_EQ(drawn.boxes.plots[0].inner.right(), drawn.boxes.plots[1].inner.right());
    EXPECT_TRUE(drawn.boxes.plots[1].namesAtLines);
    EXPECT_EQ(Spread({5, 5, 6, 50, 99, 99}, 10, 0, 100), (std::vector<double>{5, 15, 25, 50, 90, 100}));
    for (const double range : {0.004, 1.0, 7.0, 60.0, 366.0, 1e5, 3e12}) {
        for (const int most : {1, 4, 10}) {
            const double step = ValueStep(range, most, false);
            EXPECT_LE(range / step, most + 1e-9) << range;
            EXPECT_GT(range / step, most / 2.51) << range << " has too few marks";
        }
    }
    EXPECT_EQ(TimeStep(86400, 12), 7200);
    EXPECT_EQ(NameStep(24, 12), 2);
}

TEST(Chart, ALegendLeavesTheAxesRoomAndDecimalsAreThoseOfThePlotOrOfItsSteps) {
    ChartPlot many = Plot(SeriesKind::Bars, 11, kHours);
    many.decimals = 2;
    const double line = QFontMetricsF(QFont()).height();
    for (const int lines : {14, 60}) {
        const Drawn drawn(Of({many}), {250, static_cast<int>(lines * line)});
        const PlotBox& box = drawn.boxes.plots[0];
        EXPECT_GE(box.inner.height(), 4 * line - 1);
        const int all =
            LinesOf(LegendOf(box.plot, box.facts.bars, QFontMetricsF(QFont()), box.legend.width()));
        EXPECT_EQ(box.legendLines == all, lines == 60);
        EXPECT_GT(box.legendLines, 0);
        EXPECT_EQ(PointText(drawn.chart, {0, 1, 2}), "Place 02\nS1: 27");
        EXPECT_EQ(box.MarkText(box.step), ValueText(box.step, 2));
    }
    const ChartData plain(Of({Plot(SeriesKind::Bars, 1, kHours)}));
    PlotBox box(plain.content.plots[0], plain.facts[0]);
    for (const auto& [step, text] : {std::pair(0.5, "0.1"), {0.1, "0.1"}, {0.05, "0.06"}, {0.002, "0.060"}}) {
        box.step = step;
        EXPECT_EQ(box.MarkText(0.06), text);
    }
}

TEST(Chart, ParallelRunwaysLieFromLeftToRightAndNothingLiesUnderTheNorthArrow) {
    struct Case {
        std::vector<double> headings;
        std::vector<std::string> ends;   // the first ones
        std::vector<std::size_t> order;  // as seen in the direction of the first
    };
    const Case cases[] = {
        {{359.5, 0.5}, {"36L", "36R"}, {0, 1}},      {{0.5, 359.5}, {"36R", "36L"}, {1, 0}},
        {{179.9, 180.2}, {"16R", "16L"}, {1, 0}},    {{180.2, 179.9}, {"16L", "16R"}, {0, 1}},
        {{90, 90, 90}, {"10", "9", "8"}, {2, 1, 0}}, {{70, 70, 70}, {"07R", "07C", "07L"}, {2, 1, 0}}};
    const QRectF room(0, 0, 500, 400);
    for (const Case& one : cases) {
        ChartContent content;
        for (std::size_t i = 0; i < one.ends.size(); ++i) {
            std::string other = one.ends[i];
            if (other.back() == 'L' || other.back() == 'R') other.back() = other.back() == 'L' ? 'R' : 'L';
            content.runways.push_back(
                {one.headings[i], 3000, 45, "", {{one.ends[i], false}, {other, false}}});
        }
        SCOPED_TRACE(one.ends.front());
        const std::vector<RunwayPlace> places = LayOutRunways(content, QFont(), room).places;
        const RunwayPlace& first = places[0];
        const QPointF along = (first.ends[1] - first.ends[0]) / QLineF(first.ends[0], first.ends[1]).length();
        const auto across = [&](std::size_t i) {
            return QPointF::dotProduct((places[i].ends[0] + places[i].ends[1]) / 2, {-along.y(), along.x()});
        };
        for (std::size_t i = 1; i < places.size(); ++i)
            EXPECT_GT(across(one.order[i]), across(one.order[i - 1]) + 10) << i;
    }
    const std::vector<std::string> surfaces(12, "A surface of a long name ");
    for (int heading = 0; heading < 180; heading += 5) {
        ChartContent content = Runways();
        content.runways.resize(1);
        content.runways[0].heading = heading;
        for (std::size_t i = 0; i < surfaces.size(); ++i) {
            content.runways.push_back(content.runways[0]);
            content.runways.back().surface = surfaces[i] + std::to_string(i);
        }
        const RunwayLayout layout = LayOutRunways(content, QFont(), room);
        for (const RunwayPlace& place : layout.places) {
            QLineF way(place.ends[0], place.ends[1]);
            way.setLength(way.length() + QFontMetricsF(QFont()).horizontalAdvance("27R"));
            EXPECT_FALSE(layout.north.contains(way.p2())) << heading;
        }
        for (const SurfaceItem& item : layout.surfaces) EXPECT_LE(item.room.right(), room.right());
    }
}

TEST(Chart, TheValueUnderThePointerIsTheOneWhoseMarkIsThere) {
    ChartPlot stacked = Plot(SeriesKind::Bars, 5, kHours);
    ChartPlot steps = DayOfSteps(4, 2);
    steps.series[1].values = {10, 20, 30, 40};
    const ChartContent contents[] = {Of({Plot(SeriesKind::Bars, 2, kHours), steps}), Of({stacked}),
                                     Of({Plot(SeriesKind::Bars, 2, kAirlines)}),
                                     Of({Plot(SeriesKind::Bars, 5, kAirlines)}), Runways()};
    for (const ChartContent& content : contents) {
        const Drawn drawn(content, {700, 500});
        ChartPoint point;
        int count = 0;
        for (bool more = true; more; ++count) {
            const QPolygonF mark = MarkOf(drawn.chart, drawn.boxes, drawn.font, point);
            // Runways cross in their middles.
            const QPointF at =
                content.runways.empty() ? mark.boundingRect().center() : (mark[0] + mark[3]) / 2;
            const auto found = PointUnder(drawn.chart, drawn.boxes, drawn.font, at);
            EXPECT_EQ(found, point) << PointText(drawn.chart, point).toStdString() << " of "
                                    << &content - contents;
            ChartPoint next = Moved(drawn.chart, point, 1, 0);
            if (next == point) {
                next = Moved(drawn.chart, point, std::numeric_limits<std::ptrdiff_t>::min(), 1);
                more = next.series != point.series || next.plot != point.plot;
            }
            point = next;
        }
        EXPECT_EQ(count, content.runways.empty() ? count : 3);
        EXPECT_GT(count, 2);
    }
}

struct ChartForm : Form {
    ChartForm() : Form("frmChart", "Chart") { layout.rows = {FillingRow(chPlots)}; }
    Label lblPlots{*this, "lblPlots", "&Plots"};
    Chart chPlots{*this, "chPlots"};
};

struct Charts : testing::Test {
    Charts() {
        desktop.program.pump.AddTable(form, {});
        form.box = {0, 0, 600, 300};
        desktop.host.ShowForm(form);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&test::WindowOf(form)));
    }
    ChartWidget& Show(const ChartContent& content) {
        form.chPlots.Show(content);
        desktop.host.CatchUp(test::WindowOf(form));
        return test::DesktopProgram::Find<ChartWidget>(form.chPlots);
    }

    ChartForm form;
    test::DesktopProgram desktop;
};

TEST_F(Charts, ArrowKeysTellEachValueInATipAndToScreenReaders) {
    ChartPlot steps = DayOfSteps(kManyPlaces, 2);
    steps.placesTitle = "Time";
    struct Case {
        ChartContent content;
        std::vector<std::pair<Qt::Key, std::string>> keys;
    };
    using enum Qt::Key;
    const Case cases[] = {
        {Of({Plot(SeriesKind::Bars, 2, kHours), steps}),
         {{Key_Right, "Place 00, S0: 10"},
          {Key_Right, "Place 01, S0: 17"},
          {Key_Down, "Place 01, S1: 20"},
          {Key_Left, "Place 00, S1: 13"},
          {Key_Left, "Place 00, S1: 13"},
          {Key_End, "Place 03, S1: 34"},
          {Key_Down, "Time 18:00:00, S0: 52"},
          {Key_Down, "Time 18:00:00, S1: 52"},
          {Key_PageUp, "Time 15:36:00, S1: 42"},
          {Key_Home, "Time 00:00:00, S1: 40"},
          {Key_Up, "Time 00:00:00, S0: 40"},
          {Key_Up, "Place 00, S1: 13"}}},
        {Of({Plot(SeriesKind::Bars, 2, kAirlines)}),
         {{Key_End, "Place The third of them, S0: 24"},
          {Key_Right, "Place The third of them, S1: 27"},
          {Key_Up, "Place Another one, S1: 20"},
          {Key_Down, "Place The third of them, S1: 27"}}},
        {Runways(),
         {{Key_Home, "09L/27R, 2743 m by 46 m, Concrete"},
          {Key_Right, "27L/09R, 3624 m, Asphalt, 27L closed"}}},
    };
    for (const Case& one : cases) {
        ChartWidget& chart = Show(one.content);
        chart.setFocus();
        EXPECT_EQ(form.focus, &form.chPlots);
        for (const auto& [key, text] : one.keys) {
            QTest::keyClick(test::WindowOf(form).windowHandle(), key);
            EXPECT_EQ(chart.accessibleDescription().toStdString(), text);
            EXPECT_EQ(QToolTip::text().replace('\n', ", ").toStdString(), text);
        }
    }
    ChartPlot empty = DayOfSteps(0, 1);
    ChartWidget& second = Show(Of({empty, Plot(SeriesKind::Bars, 1, kHours)}));
    second.setFocus();
    QTest::keyClick(test::WindowOf(form).windowHandle(), Key_End);
    EXPECT_EQ(second.accessibleDescription(), "Place 03, S0: 31");
    const ChartWidget& chart = Show(Of({}));
    EXPECT_EQ(chart.accessibleDescription(), "Title Note");
    EXPECT_EQ(chart.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&const_cast<ChartWidget&>(chart))->text(QAccessible::Name),
        "Plots");
}

TEST_F(Charts, ThePointerHasATipAndRowsThatDoNotFitAreScrolled) {
    std::vector<std::string> names;
    for (int i = 0; i < 200; ++i) names.push_back("The airline of the number " + std::to_string(i));
    ChartWidget& chart = Show(Of({Plot(SeriesKind::Bars, 2, names)}));
    EXPECT_GT(chart.verticalScrollBar()->maximum(), 1000);
    chart.setFocus();
    QTest::keyClick(test::WindowOf(form).windowHandle(), Qt::Key_End);
    EXPECT_EQ(chart.verticalScrollBar()->value(), chart.verticalScrollBar()->maximum());
    const QRectF bar = chart.Boxes().plots[0].Bar(1, 199);
    const QPoint at = bar.center().toPoint();
    EXPECT_TRUE(chart.viewport()->rect().contains(at));
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, at, chart.viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(chart.viewport(), &help);
    EXPECT_EQ(QToolTip::text(), "Place The airline of the number 199\nS1: 1406");
    Show(Of({Plot(SeriesKind::Bars, 2, kAirlines)}));
    EXPECT_EQ(chart.verticalScrollBar()->maximum(), 0);
}

TEST_F(Charts, SavedPicturesAreReadByOthersAndHoldAllRows) {
    std::vector<std::string> names(200, "An airline of a long name");
    ChartContent content = Of({Plot(SeriesKind::Bars, 2, names)});
    content.title = "Fred & Sons <old>\x01\n";
    form.chPlots.Show(content);
    struct Second : Form {
        Second() : Form("frmSecond", "") {}
        Chart chOther{*this, "chOther"};
    } second;
    second.chOther.Show(Runways());
    const Chart* both[] = {&form.chPlots, &second.chOther};
    for (const std::size_t count : {1u, 2u}) {
        const std::span<const Chart* const> charts(both, count);
        const auto bytes = [&](PictureFormat format) {
            return QByteArray::fromStdString(desktop.host.DrawCharts(charts, format));
        };
        QByteArray png = bytes(PictureFormat::Png);
        QBuffer buffer(&png);
        const QImage image = QImageReader(&buffer, "png").read();
        EXPECT_EQ(image.width(), 1000);
        EXPECT_GT(image.height(), 200 * 20);
        EXPECT_EQ(image.pixelColor(2, 2), Qt::white);
#ifdef ORLO_SVG
        QSvgRenderer svg(bytes(PictureFormat::Svg));
        EXPECT_TRUE(svg.isValid());
        EXPECT_TRUE(bytes(PictureFormat::Svg).contains("<title>Fred &amp; Sons &lt;old&gt;  </title>"));
        EXPECT_EQ(svg.viewBoxF().size(), QSizeF(image.size()));
#endif
        const QByteArray pdf = bytes(PictureFormat::Pdf);
        EXPECT_TRUE(pdf.startsWith("%PDF"));
        EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    }
    names.resize(2000);
    const ChartData many(Of({Plot(SeriesKind::Bars, 2, names)}));
    const ChartBoxes boxes = LayOutChart(many, QFont(), QRectF(0, 0, 1000, 900), std::nullopt);
    EXPECT_LE(boxes.plots[0].Bar(1, 1999).top(), boxes.plots[0].inner.bottom());
    EXPECT_EQ(desktop.host.DrawCharts({}, PictureFormat::Png), "");
}

}  // namespace
}  // namespace orlo
