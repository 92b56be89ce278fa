#include "desktop/TextPrinter.h"

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

QFont PrintFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSize(kFontPoints);
    return font;
}

QTextOption PrintOption(double columnWidth) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(kTabColumns * columnWidth);
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
          option_(PrintOption(metrics_.horizontalAdvance(QChar(' ')))),
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
        // The lines of a layout stand one below the other in it.
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

}  // namespace

std::unique_ptr<QPrinter> MakeTextPrinter() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    const double margin = kMarginMillimetres;
    printer->setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    return printer;
}

bool PrintText(std::string_view text, QPrinter& printer) {
    PageWriter pages(printer);
    if (!pages.IsOpen()) return false;
    while (!text.empty()) {
        const std::string_view line = BeforeFirst(text, "\n");
        pages.Write(ToQString(RemoveAll(line, '\r')));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
    }
    return true;
}

}  // namespace orlo
