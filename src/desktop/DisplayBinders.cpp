#include "desktop/DisplayBinders.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <functional>
#include <utility>

#include "desktop/AppIcon.h"
#include "desktop/ControlSizes.h"
#include "desktop/ElidedLabel.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

// The emblem with the program's title below.
class EmblemPicture : public QWidget {
  public:
    EmblemPicture(QWidget& parent, std::function<void()> click)
        : QWidget(&parent), click_(std::move(click)) {}

    QSize sizeHint() const override {
        const int line = fontMetrics().height();
        return QSize(kLinesWide * line, kLinesHigh * line);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), palette().base());
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(palette().color(QPalette::Text));
        QFont font = painter.font();
        font.setPointSizeF(font.pointSizeF() * kTitleScale);
        painter.setFont(font);
        const int title = painter.fontMetrics().height();
        const int side = std::min(width(), height() - title) * 3 / 4;
        QRect place(0, 0, side, side);
        place.moveCenter(QPoint(width() / 2, (height() - title) / 2));
        DrawEmblem(painter, place);
        painter.drawText(QRect(0, height() - title - title / 4, width(), title), Qt::AlignCenter,
                         accessibleName());
    }
    void mousePressEvent(QMouseEvent*) override { click_(); }

  private:
    static constexpr int kLinesWide = 20;
    static constexpr int kLinesHigh = 14;
    static constexpr double kTitleScale = 2.0;

    std::function<void()> click_;
};

QWidget& MakePicture(Picture& picture, QWidget& parent, std::function<void()> click) {
    if (picture.emblem) return *new EmblemPicture(parent, std::move(click));
    return *new QWidget(&parent);
}

}  // namespace

PictureBinder::PictureBinder(Picture& picture, QWidget& parent, EventSink& sink)
    : Binder(picture, MakePicture(picture, parent, [this] { UserActs(EventKind::Click, [] {}); }), sink) {}

void FrameBinder::DrawContent() {
    if (caption_.Changes(Of().caption)) shown_.setTitle(ToQString(Of().caption));
}

void ProgressBarBinder::DrawContent() {
    const auto& bar = static_cast<const ProgressBar&>(Of());
    // With a maximum of 0 the toolkit draws a bar that runs to and fro.
    const int maximum = std::max(bar.maximum, 1);
    if (shown_.maximum() != maximum) shown_.setMaximum(maximum);
    const int value = std::clamp(bar.value, 0, maximum);
    if (shown_.value() != value) shown_.setValue(value);
}

StatusBarBinder::StatusBarBinder(StatusBar& bar, QWidget& parent, EventSink& sink)
    : Binder(bar, *new ElidedLabel(parent, Qt::ElideRight), sink), shown_(static_cast<QLabel&>(Widget())) {
    shown_.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    // The text begins where those of the panes do.
    shown_.setIndent(SpaceOfStyle().edges.left() - shown_.frameWidth());
    // A long text must not widen the window.
    shown_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void StatusBarBinder::DrawContent() {
    const auto& bar = static_cast<const StatusBar&>(Of());
    if (text_.Changes(bar.text)) shown_.setText(ShownText(bar.text));
}

}  // namespace orlo
