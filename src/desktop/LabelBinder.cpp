#include "desktop/LabelBinder.h"

#include <QAbstractItemView>

#include "desktop/ElidedLabel.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

QLabel& MakeLabel(const Label& label, QWidget& parent) {
    if (label.plainCaption) return *new ElidedLabel(parent, Qt::ElideMiddle);
    return *new QLabel(&parent);
}

}  // namespace

LabelBinder::LabelBinder(Label& label, QWidget& parent, EventSink& sink)
    : Binder(label, MakeLabel(label, parent), sink), label_(label), shown_(static_cast<QLabel&>(Widget())) {
    shown_.setTextFormat(Qt::PlainText);
}

void LabelBinder::SetBuddy(QWidget& widget) {
    const bool takesFocus = widget.focusPolicy() != Qt::NoFocus;
    if (takesFocus) shown_.setBuddy(&widget);
    // The toolkit takes the accessible name of a buddy from its label, but not that of a list or tree.
    if (!takesFocus || qobject_cast<QAbstractItemView*>(&widget) != nullptr) named_ = &widget;
}

void LabelBinder::DrawContent() {
    if (!caption_.Changes(label_.caption)) return;
    const bool asItStands = label_.plainCaption || shown_.buddy() != nullptr;
    shown_.setText(asItStands ? ShownText(label_.caption) : WithoutMnemonic(label_.caption));
    if (named_ != nullptr) named_->setAccessibleName(WithoutMnemonic(label_.caption));
}

}  // namespace orlo
