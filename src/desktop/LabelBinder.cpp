#include "desktop/LabelBinder.h"

#include <QAbstractItemView>

#include "desktop/ScreenText.h"

namespace orlo {

LabelBinder::LabelBinder(Label& label, QWidget& parent, EventSink& sink)
    : Binder(label, *new QLabel(&parent), sink), label_(label), shown_(static_cast<QLabel&>(Widget())) {
    shown_.setTextFormat(Qt::PlainText);
}

void LabelBinder::DrawContent() {
    if (!caption_.Changes(label_.caption)) return;
    shown_.setText(shown_.buddy() != nullptr ? ToQString(label_.caption) : WithoutMnemonic(label_.caption));
    // A list doesn't take its name from its label, as fields do.
    if (auto* list = qobject_cast<QAbstractItemView*>(shown_.buddy()))
        list->setAccessibleName(WithoutMnemonic(label_.caption));
}

}  // namespace orlo
