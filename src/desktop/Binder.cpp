#include "desktop/Binder.h"

#include <QPalette>

#include "desktop/ScreenText.h"

namespace orlo {
namespace {

void ApplyColour(QWidget& widget, Colour colour) {
    QPalette palette = widget.palette();
    const QColor shown = ScreenColour(colour).value_or(QPalette().color(QPalette::WindowText));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, shown);
        palette.setColor(QPalette::Inactive, role, shown);
    }
    widget.setPalette(palette);
}

}  // namespace

Binder::Binder(Control& control, QWidget& widget, EventSink& sink)
    : control_(control), widget_(widget), sink_(sink) {
    widget_.setObjectName(QString::fromStdString(control.name));
}

void Binder::Draw() {
    DrawCommon();
    if (control_.EffectivelyVisible()) DrawContent();
}

void Binder::DrawCommon() {
    // The control's own states: the toolkit applies those of a container to its children, as the form does.
    if (drawnVisible_ != control_.visible) widget_.setVisible(control_.visible);
    drawnVisible_ = control_.visible;
    const bool ownEnabled = !widget_.testAttribute(Qt::WA_ForceDisabled);
    if (ownEnabled != control_.enabled) widget_.setEnabled(control_.enabled);
    if (drawnToolTip_ != control_.toolTip) {
        drawnToolTip_ = control_.toolTip;
        widget_.setToolTip(TipText(drawnToolTip_));
    }
    if (drawnAccessibleName_ != control_.accessibleName) {
        drawnAccessibleName_ = control_.accessibleName;
        widget_.setAccessibleName(ToQString(drawnAccessibleName_));
    }
    if (drawnColour_ != control_.colour) {
        drawnColour_ = control_.colour;
        ApplyColour(widget_, drawnColour_);
    }
}

QString WithoutMnemonic(const std::string& caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        plain.push_back(caption[i]);
    }
    return ToQString(plain);
}

}  // namespace orlo
