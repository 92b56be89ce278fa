#include "desktop/OptionButtonBinder.h"

#include "desktop/ScreenText.h"

namespace orlo {

OptionButtonBinder::OptionButtonBinder(OptionButton& option, QWidget& parent, EventSink& sink)
    : Binder(option, *new QRadioButton(&parent), sink),
      option_(option),
      shown_(static_cast<QRadioButton&>(Widget())) {
    QObject::connect(&shown_, &QRadioButton::clicked, &life,
                     [this] { UserActs(EventKind::Click, [this] { option_.Check(); }); });
}

void OptionButtonBinder::DrawContent() {
    if (caption_.Changes(option_.caption)) shown_.setText(ToQString(option_.caption));
    if (shown_.isChecked() != option_.checked) ShowChecked(option_.checked);
}

// The toolkit lets nobody clear a button while it is exclusive.
void OptionButtonBinder::ShowChecked(bool on) {
    shown_.setAutoExclusive(false);
    shown_.setChecked(on);
    shown_.setAutoExclusive(true);
}

// The user's click has cleared the siblings too, and they are drawn again only with the next drawing.
void OptionButtonBinder::GoBack() {
    for (QRadioButton* sibling :
         shown_.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        const Control* control = option_.form.Find(sibling->objectName().toStdString());
        if (control == nullptr || control->kind != ControlKind::OptionButton) continue;
        sibling->setAutoExclusive(false);
        sibling->setChecked(static_cast<const OptionButton*>(control)->checked);
        sibling->setAutoExclusive(true);
    }
}

}  // namespace orlo
