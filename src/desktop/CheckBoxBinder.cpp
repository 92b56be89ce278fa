#include "desktop/CheckBoxBinder.h"

#include "desktop/ScreenText.h"

namespace orlo {

CheckBoxBinder::CheckBoxBinder(CheckBox& box, QWidget& parent, EventSink& sink)
    : Binder(box, *new QCheckBox(&parent), sink), box_(box), shown_(static_cast<QCheckBox&>(Widget())) {
    // Not `toggled`, which a drawing causes too.
    QObject::connect(&shown_, &QCheckBox::clicked, &life,
                     [this](bool on) { UserActs(EventKind::Click, [&] { box_.checked = on; }); });
}

void CheckBoxBinder::DrawContent() {
    if (caption_.Changes(box_.caption)) shown_.setText(ToQString(box_.caption));
    if (shown_.isChecked() != box_.checked) shown_.setChecked(box_.checked);
}

}  // namespace orlo
