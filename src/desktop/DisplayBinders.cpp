#include "desktop/DisplayBinders.h"

#include <algorithm>

#include "desktop/ScreenText.h"

namespace orlo {

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
