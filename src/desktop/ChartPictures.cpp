// Pictures of charts as files, always in light colours and at one size, whatever the window's, so that they
// look the same wherever they were made.

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "desktop/ChartPainter.h"
#include "desktop/DesktopHost.h"
#include "desktop/ScreenText.h"
#include "forms/Chart.h"

#ifdef ORLO_SVG
#include <QSvgGenerator>
#endif

namespace orlo {
namespace {

constexpr double kWidth = 1000;     // pixels, of all charts together
constexpr double kHighest = 19000;  // pixels; a page ends at 200 inches
constexpr int kFontPixels = 14;
constexpr int kPixelsPerInch = 96;
constexpr double kPointsPerInch = 72;

struct Sheet {
    std::vector<ChartData> charts;
    QFont font;
    QSizeF size;
};

Sheet MakeSheet(std::span<const Chart* const> charts) {
    Sheet sheet;
    sheet.font = QGuiApplication::font();
    sheet.font.setPixelSize(kFontPixels);
    const double width = kWidth / static_cast<double>(charts.size());
    double height = 0;
    for (const Chart* chart : charts) {
        sheet.charts.emplace_back(chart->Content());
        height = std::max(height, NaturalHeight(sheet.charts.back(), sheet.font, width));
    }
    sheet.size = QSizeF(kWidth, std::min(height, kHighest));
    return sheet;
}

bool Draw(const Sheet& sheet, QPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    const ChartColours colours = PictureColours();
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.fillRect(QRectF(QPointF(), sheet.size), colours.ground);
    const double width = sheet.size.width() / static_cast<double>(sheet.charts.size());
    double left = 0;
    for (const ChartData& chart : sheet.charts) {
        painter.setFont(sheet.font);
        DrawChart(painter, chart,
                  LayOutChart(chart, sheet.font, QRectF(left, 0, width, sheet.size.height()), std::nullopt),
                  colours);
        left += width;
    }
    return painter.end();
}

bool DrawPng(const Sheet& sheet, QBuffer& file) {
    QImage image(sheet.size.toSize(), QImage::Format_RGB32);
    return !image.isNull() && Draw(sheet, image) && image.save(&file, "PNG");
}

#ifdef ORLO_SVG
constexpr bool kDrawsSvg = true;

bool DrawSvg(const Sheet& sheet, QBuffer& file) {
    QSvgGenerator picture;
    picture.setOutputDevice(&file);
    picture.setResolution(kPixelsPerInch);
    picture.setSize(sheet.size.toSize());
    picture.setViewBox(QRectF(QPointF(), sheet.size));
    picture.setTitle(ShownText(sheet.charts.front().content.title).toHtmlEscaped());
    picture.setDescription(ShownText(sheet.charts.front().content.note).toHtmlEscaped());
    return Draw(sheet, picture);
}
#else
constexpr bool kDrawsSvg = false;

bool DrawSvg(const Sheet&, QBuffer&) {
    return false;
}
#endif

bool DrawPdf(const Sheet& sheet, QBuffer& file) {
    QPdfWriter document(&file);
    document.setResolution(kPixelsPerInch);
    document.setPageSize(QPageSize(sheet.size * kPointsPerInch / kPixelsPerInch, QPageSize::Point, QString(),
                                   QPageSize::ExactMatch));
    document.setPageMargins(QMarginsF());
    return Draw(sheet, document);
}

}  // namespace

bool DesktopHost::DrawsFormat(PictureFormat format) const {
    return format != PictureFormat::Svg || kDrawsSvg;
}

std::string DesktopHost::DrawCharts(std::span<const Chart* const> charts, PictureFormat format) {
    if (charts.empty()) return {};
    const Sheet sheet = MakeSheet(charts);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    const bool drawn = format == PictureFormat::Png   ? DrawPng(sheet, file)
                       : format == PictureFormat::Svg ? DrawSvg(sheet, file)
                                                      : DrawPdf(sheet, file);
    return drawn ? file.data().toStdString() : std::string();
}

}  // namespace orlo
