#include "desktop/EdgeStyle.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QStyleOption>

namespace orlo {
namespace {

constexpr int kDarkBelow = 128;
constexpr QColor kEdgeGround(0xB0, 0xB0, 0xB0);  // from which the style darkens the edge
constexpr QColor kSeparator(0x50, 0x50, 0x50);   // between the entries of a menu
constexpr int kSeparatorGap = 5;                 // beside it

bool IsDark(const QStyleOption& option) {
    return option.palette.color(QPalette::Window).lightness() < kDarkBelow;
}

bool HasEdge(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_Frame:
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_IndicatorCheckBox:
        case QStyle::PE_IndicatorRadioButton:
            return true;
        default:
            return false;
    }
}

class EdgeStyle : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (!IsDark(*option) || !HasEdge(element))
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        // Changed in place: a copy as QStyleOption would lose the members of its real type.
        const QScopedValueRollback<QPalette> palette(const_cast<QStyleOption*>(option)->palette);
        const_cast<QStyleOption*>(option)->palette.setColor(QPalette::Window, kEdgeGround);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        const bool separator = element == CE_MenuItem && item != nullptr &&
                               item->menuItemType == QStyleOptionMenuItem::Separator;
        if (!separator || !IsDark(*option)) return QProxyStyle::drawControl(element, option, painter, widget);
        const int middle = option->rect.center().y();
        painter->fillRect(option->rect, option->palette.base());
        painter->setPen(kSeparator);
        painter->drawLine(option->rect.left() + kSeparatorGap, middle, option->rect.right() - kSeparatorGap,
                          middle);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        switch (hint) {
            case SH_ComboBox_Popup:    // otherwise as high as the screen, without a scroll bar
            case SH_EtchDisabledText:  // otherwise with a light shadow, which blurs on dark
                return 0;
            default:
                return QProxyStyle::styleHint(hint, option, widget, result);
        }
    }
};

}  // namespace

void UseVisibleEdges() {
    const QString name = QApplication::style()->name();
    if (name.compare("fusion", Qt::CaseInsensitive) == 0) QApplication::setStyle(new EdgeStyle(name));
}

}  // namespace orlo
