#include "desktop/EdgeStyle.h"

#include <QApplication>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QStyleOption>

namespace orlo {
namespace {

constexpr int kDarkBelow = 128;
constexpr QColor kEdgeGround(0xB0, 0xB0, 0xB0);  // from which the style darkens the edge

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
        const bool dark = option->palette.color(QPalette::Window).lightness() < kDarkBelow;
        if (!dark || !HasEdge(element)) return QProxyStyle::drawPrimitive(element, option, painter, widget);
        // In place, since a copy would cut off what the kind of option holds besides.
        const QScopedValueRollback<QPalette> palette(const_cast<QStyleOption*>(option)->palette);
        const_cast<QStyleOption*>(option)->palette.setColor(QPalette::Window, kEdgeGround);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

}  // namespace

void UseVisibleEdges() {
    const QString name = QApplication::style()->name();
    if (name.compare("fusion", Qt::CaseInsensitive) == 0) QApplication::setStyle(new EdgeStyle(name));
}

}  // namespace orlo
