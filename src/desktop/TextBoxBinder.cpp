#include "desktop/TextBoxBinder.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextCursor>
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Text.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

// What a text box wants to show, in characters.
struct PageSize {
    int columns;
    int lines;
};
constexpr PageSize PageOf(bool isReport) {
    return isReport ? PageSize{64, 26} : PageSize{60, 12};
}
constexpr int kMostColumns = 92;
constexpr int kTabStop = 8;  // as on paper

// The columns of the text's longest line.
int ColumnsOf(const QString& text) {
    int most = 0;
    int columns = 0;
    for (const QChar character : text) {
        columns = character == '\n'   ? 0
                  : character == '\t' ? (columns / kTabStop + 1) * kTabStop
                                      : columns + 1;
        most = std::max(most, columns);
    }
    return most;
}

Qt::CursorShape FieldCursor(PointerShape shape) {
    return shape == PointerShape::Hourglass ? Qt::WaitCursor : Qt::IBeamCursor;
}

}  // namespace

// A report that is wider than a page gets room for its lines.
class PageEdit : public QPlainTextEdit {
  public:
    PageEdit(QWidget& parent, bool isReport)
        : QPlainTextEdit(&parent), isReport_(isReport), columns_(PageOf(isReport).columns) {
        setTabChangesFocus(true);
        if (!isReport) return;
        setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        setLineWrapMode(QPlainTextEdit::NoWrap);
        setTabStopDistance(kTabStop * QFontMetricsF(font()).horizontalAdvance(' '));
    }
    void ShowText(const QString& text) {
        setPlainText(text);
        if (!isReport_) return;
        columns_ = std::clamp(ColumnsOf(text), PageOf(isReport_).columns, kMostColumns);
        updateGeometry();
    }
    QSize sizeHint() const override {
        const QFontMetricsF metrics(font());
        const double width = metrics.horizontalAdvance('0') * columns_ + (isReport_ ? Edges() : 0);
        return {static_cast<int>(std::ceil(width)),
                static_cast<int>(metrics.lineSpacing() * PageOf(isReport_).lines)};
    }

  private:
    double Edges() const {
        return 2 * frameWidth() + 2 * document()->documentMargin() + verticalScrollBar()->sizeHint().width();
    }

    bool isReport_;
    int columns_;
};

LineBinder::LineBinder(TextBox& box, QWidget& parent, EventSink& sink)
    : Binder(box, *new QLineEdit(&parent), sink), box_(box), shown_(static_cast<QLineEdit&>(Widget())) {
    // Not `textEdited`, which isn't sent for what a screen reader writes.
    QObject::connect(&shown_, &QLineEdit::textChanged, &life, [this](const QString& text) {
        if (drawing_) return;
        UserActs(EventKind::Change, [&] {
            box_.text = FromQString(text);
            text_.Changes(box_.text);
        });
    });
}

void LineBinder::DrawContent() {
    // The widget would cut a longer text, and an edit would write it cut into the form.
    const bool readOnly = box_.readOnly || box_.text.size() > static_cast<std::size_t>(shown_.maxLength());
    if (shown_.isReadOnly() != readOnly) shown_.setReadOnly(readOnly);
    // What the user typed is in the widget already.
    if (text_.Changes(box_.text)) ShowText();
}

void LineBinder::DrawPointer(PointerShape shape) {
    shown_.setCursor(FieldCursor(shape));
}

void LineBinder::GoBack() {
    ShowText();
}

// The cursor stays where it was.
void LineBinder::ShowText() {
    const QScopedValueRollback<bool> drawing(drawing_, true);
    const int cursor = shown_.cursorPosition();
    shown_.setText(ToQString(box_.text));
    shown_.setCursorPosition(std::min(cursor, static_cast<int>(shown_.text().size())));
}

void LineBinder::TakeRequests() {
    if (std::exchange(box_.goToEndRequest, false)) shown_.end(false);
    if (!box_.selectAllRequest) return;
    box_.selectAllRequest = false;
    // Only where the selection is seen. The Tab key selects all by itself.
    if (shown_.window()->focusWidget() == &shown_) shown_.selectAll();
}

TextBinder::TextBinder(TextBox& box, QWidget& parent, EventSink& sink)
    : Binder(box, *new PageEdit(parent, box.style == TextBoxStyle::FixedFont), sink),
      box_(box),
      shown_(static_cast<PageEdit&>(Widget())) {
    QObject::connect(&shown_, &QPlainTextEdit::textChanged, &life, [this] {
        UserActs(EventKind::Change, [&] {
            box_.text = ReplaceAll(FromQString(shown_.toPlainText()), "\n", "\r\n");
            text_.Changes(box_.text);
        });
    });
}

void TextBinder::DrawContent() {
    if (shown_.isReadOnly() != box_.readOnly) shown_.setReadOnly(box_.readOnly);
    if (text_.Changes(box_.text)) ShowText();
}

void TextBinder::DrawPointer(PointerShape shape) {
    shown_.viewport()->setCursor(FieldCursor(shape));
}

void TextBinder::GoBack() {
    ShowText();
}

// Signals are blocked: the toolkit has none for the user's edits alone.
void TextBinder::ShowText() {
    const QSignalBlocker blocker(shown_);
    const int at = shown_.textCursor().position();
    shown_.ShowText(ToQString(RemoveAll(box_.text, '\r')));
    QTextCursor cursor = shown_.textCursor();
    cursor.setPosition(std::min(at, shown_.document()->characterCount() - 1));
    shown_.setTextCursor(cursor);
}

void TextBinder::TakeRequests() {
    if (std::exchange(box_.goToEndRequest, false)) shown_.moveCursor(QTextCursor::End);
    if (!box_.selectAllRequest) return;
    box_.selectAllRequest = false;
    shown_.selectAll();
}

}  // namespace orlo
