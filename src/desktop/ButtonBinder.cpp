#include "desktop/ButtonBinder.h"

#include "desktop/ScreenText.h"

namespace orlo {

ButtonBinder::ButtonBinder(Button& button, QWidget& parent, EventSink& sink)
    : Binder(button, *new QPushButton(&parent), sink),
      button_(button),
      shown_(static_cast<QPushButton&>(Widget())) {
    shown_.setAutoDefault(false);
    QObject::connect(&shown_, &QPushButton::clicked, &life, [this] { UserActs(EventKind::Click, [] {}); });
}

void ButtonBinder::DrawContent() {
    if (caption_.Changes(button_.caption)) shown_.setText(ToQString(button_.caption));
    const bool isDefault = button_.form.defaultButton == &button_;
    if (shown_.isDefault() != isDefault) shown_.setDefault(isDefault);
}

}  // namespace orlo
