#include "desktop/TextPrinter.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QTextLayout>
#include <QTextOption>

#include "core/Text.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr int kFontPoints = 10;
constexpr int kTabColumns = 8;
constexpr double kMarginMillimetres = 15;
constexpr qsizetype kLongestPiece = 4000;
constexpr qint64 kMostMilliseconds = 40;

QFont PrintFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setFamilies(QStringList("Courier New") + font.families());
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSize(kFontPoints);
    return font;
}

// Where a text behind one tab begins, in the printer's units.
double FirstTab(const QFont& font, QPrinter& printer, const QTextOption& option) {
    QTextLayout layout("\t.", font, &printer);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line.cursorToX(1);
}

// The toolkit scales the tab distance for a printer, or doesn't; so one tab is measured and the distance
// corrected.
QTextOption PrintOption(const QFont& font, QPrinter& printer, double columnWidth) {
    const double wanted = kTabColumns * columnWidth;
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(wanted);
    const double real = FirstTab(font, printer, option);
    if (real > 0) option.setTabStopDistance(wanted * wanted / real);
    return option;
}

// Fills pages from top to bottom.
class PageWriter {
  public:
    explicit PageWriter(QPrinter& printer)
        : printer_(printer),
          painter_(&printer),
          font_(PrintFont()),
          metrics_(font_, &printer),
          option_(PrintOption(font_, printer, metrics_.horizontalAdvance(QChar(' ')))),
          page_(printer.pageLayout().paintRectPixels(printer.resolution()).size()) {}

    bool IsOpen() const { return painter_.isActive(); }

    void Write(const QString& text) {
        QTextLayout layout(text, font_, &printer_);
        layout.setTextOption(option_);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
            line.setLineWidth(page_.width());
        layout.endLayout();
        for (int i = 0; i < layout.lineCount(); ++i) WriteLine(layout.lineAt(i));
    }

  private:
    void WriteLine(const QTextLine& line) {
        const double height = std::max(line.height(), metrics_.lineSpacing());
        if (top_ > 0 && top_ + height > page_.height()) {
            printer_.newPage();
            top_ = 0;
        }
        // The line draws itself at its place within the layout.
        line.draw(&painter_, QPointF(0, top_ - line.y()));
        top_ += height;
    }

    QPrinter& printer_;
    QPainter painter_;
    QFont font_;
    QFontMetricsF metrics_;
    QTextOption option_;
    QSizeF page_;
    double top_ = 0;
};

// In pieces, since the time to lay out a line grows with the square of its length.
void WritePieces(PageWriter& pages, const QString& line) {
    pages.Write(line.left(kLongestPiece));
    for (qsizetype at = kLongestPiece; at < line.size(); at += kLongestPiece)
        pages.Write(line.mid(at, kLongestPiece));
}

// Whether the file was written whole. The toolkit doesn't tell that the disk was full.
bool EndsAsPdf(const QString& path) {
    constexpr qint64 kTail = 32;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(0, file.size() - kTail))) return false;
    return file.read(kTail).contains("%%EOF");
}

}  // namespace

std::unique_ptr<QPrinter> MakeTextPrinter() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    const double margin = kMarginMillimetres;
    printer->setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    return printer;
}

bool PrintText(std::string_view text, QPrinter& printer, const std::function<void()>& betweenLines) {
    {
        PageWriter pages(printer);
        if (!pages.IsOpen()) return false;
        QElapsedTimer sinceCall;
        sinceCall.start();
        while (!text.empty()) {
            const std::string_view line = BeforeFirst(text, "\n");
            WritePieces(pages, ToQString(RemoveAll(line, '\r')));
            text.remove_prefix(std::min(text.size(), line.size() + 1));
            if (sinceCall.elapsed() < kMostMilliseconds) continue;
            betweenLines();
            sinceCall.start();
        }
    }
    return printer.outputFormat() != QPrinter::PdfFormat || EndsAsPdf(printer.outputFileName());
}

}  // namespace orlo
