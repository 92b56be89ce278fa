#include "desktop/DisplayBinders.h"

#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <algorithm>

#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr int kEmblemLines = 12;  // heights of a line of text
constexpr double kNameScale = 3;

// The icon of the program over its name.
class Emblem : public QWidget {
  public:
    Emblem(const QString& name, QWidget* parent) : QWidget(parent), name_(name) {}

    QSize sizeHint() const override {
        const int line = fontMetrics().lineSpacing();
        return {2 * kEmblemLines * line, kEmblemLines * line};
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QFont large = font();
        large.setPointSizeF(large.pointSizeF() * kNameScale);
        painter.setFont(large);
        const int nameHeight = painter.fontMetrics().height();
        const QIcon icon = window()->windowIcon();
        if (icon.isNull()) {
            painter.drawText(rect(), Qt::AlignCenter, name_);
            return;
        }
        const QRect above = rect().adjusted(0, 0, 0, -nameHeight);
        icon.paint(&painter, above);
        painter.drawText(QRect(0, above.bottom(), width(), nameHeight), Qt::AlignCenter, name_);
    }

  private:
    QString name_;
};

QWidget* NewPicture(const Picture& picture, QWidget& parent) {
    if (picture.accessibleName.empty()) return new QWidget(&parent);
    return new Emblem(ToQString(picture.accessibleName), &parent);
}

}  // namespace

PictureBinder::PictureBinder(Picture& picture, QWidget& parent, EventSink& sink)
    : Binder(picture, *NewPicture(picture, parent), sink) {}

void FrameBinder::DrawContent() {
    if (caption_.Changes(Of().caption)) shown_.setTitle(ToQString(Of().caption));
}

void ProgressBarBinder::DrawContent() {
    const auto& bar = static_cast<const ProgressBar&>(Of());
    // A maximum of 0 would be drawn as a bar without an end.
    const int maximum = std::max(bar.maximum, 1);
    if (shown_.maximum() != maximum) shown_.setMaximum(maximum);
    const int value = std::clamp(bar.value, 0, maximum);
    if (shown_.value() != value) shown_.setValue(value);
}

StatusBarBinder::StatusBarBinder(StatusBar& bar, QWidget& parent, EventSink& sink)
    : Binder(bar, *new QLabel(&parent), sink), shown_(static_cast<QLabel&>(Widget())) {
    shown_.setTextFormat(Qt::PlainText);
    shown_.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    // A long text must not widen the window.
    shown_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void StatusBarBinder::DrawContent() {
    const auto& bar = static_cast<const StatusBar&>(Of());
    if (text_.Changes(bar.text)) shown_.setText(ToQString(bar.text));
}

}  // namespace orlo
