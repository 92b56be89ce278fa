#include "desktop/ControlSizes.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTabBar>
#include <algorithm>

#include "desktop/Binder.h"
#include "desktop/ChartWidget.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr int kHintCharacters = 17;  // that a line edit's size hint has room for
constexpr int kLeastListWidth = 200;
constexpr int kRowRoom = 4;
constexpr int kStatusRoom = 4;

QSize ComboSize(const ComboBox& combo) {
    QComboBox shown;
    for (const ComboEntry& entry : combo.entries) shown.addItem(ToQString(entry.text));
    return shown.sizeHint();
}

QSize TabsSize(const TabStrip& tabs) {
    QTabBar shown;
    for (const TabPage& page : tabs.pages) shown.addTab(ToQString(page.caption));
    return shown.sizeHint();
}

QSize StatusSize() {
    QLabel shown("X");
    shown.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    return shown.sizeHint() + QSize(0, kStatusRoom);
}

}  // namespace

QSize NaturalSize(const Control& control) {
    const QString caption = ToQString(control.caption);
    switch (control.kind) {
        case ControlKind::Label:
            return QLabel(WithoutMnemonic(control.caption)).sizeHint();
        case ControlKind::Button:
            return QPushButton(caption).sizeHint();
        case ControlKind::CheckBox:
            return QCheckBox(caption).sizeHint();
        case ControlKind::OptionButton:
            return QRadioButton(caption).sizeHint();
        case ControlKind::TextBox:
        case ControlKind::ProgressBar:
            return QLineEdit().sizeHint();
        case ControlKind::ComboBox:
            return ComboSize(static_cast<const ComboBox&>(control));
        case ControlKind::TabStrip:
            return TabsSize(static_cast<const TabStrip&>(control));
        case ControlKind::StatusBar:
            return StatusSize();
        case ControlKind::ListView:
        case ControlKind::TreeView:
            return {kLeastListWidth, ListHeight(1)};
        case ControlKind::Chart:
            return ChartWidget(nullptr).sizeHint();
        case ControlKind::Frame:
        case ControlKind::Picture:
        case ControlKind::MenuEntry:
            break;
    }
    return {0, 0};
}

int WidestOf(std::initializer_list<const Control*> controls) {
    int widest = 0;
    for (const Control* control : controls) widest = std::max(widest, NaturalSize(*control).width());
    return widest;
}

int FieldWidth(std::string_view sample) {
    const QLineEdit field;
    const QFontMetrics metrics(field.font());
    const int edges = field.sizeHint().width() - kHintCharacters * metrics.horizontalAdvance('x');
    return metrics.horizontalAdvance(ToQString(sample)) + std::max(edges, 0);
}

int ListHeight(int rows) {
    const int row = QFontMetrics(QApplication::font("QAbstractItemView")).height() + kRowRoom;
    return (rows + 1) * row + 2 * QApplication::style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
}

QMargins FrameMargins() {
    QGroupBox frame("X");
    frame.ensurePolished();
    frame.resize(frame.sizeHint() + QSize(100, 100));
    const LayoutSpace space = SpaceOfStyle();
    // The frame's edges and title, and the style's space inside them.
    return frame.contentsMargins() + QMargins(space.across, space.down / 2, space.across, space.down);
}

LayoutSpace SpaceOfStyle() {
    const QStyle& style = *QApplication::style();
    const auto metric = [&](QStyle::PixelMetric of, int otherwise) {
        const int found = style.pixelMetric(of);
        return found > 0 ? found : otherwise;
    };
    constexpr int kEdge = 9;
    constexpr int kGap = 6;
    LayoutSpace space;
    space.edges = {metric(QStyle::PM_LayoutLeftMargin, kEdge), metric(QStyle::PM_LayoutTopMargin, kEdge),
                   metric(QStyle::PM_LayoutRightMargin, kEdge), metric(QStyle::PM_LayoutBottomMargin, kEdge)};
    space.across = metric(QStyle::PM_LayoutHorizontalSpacing, kGap);
    space.down = metric(QStyle::PM_LayoutVerticalSpacing, kGap);
    return space;
}

int MenuBarHeight() {
    QMenuBar bar;
    bar.addMenu("X");
    return bar.isNativeMenuBar() ? 0 : bar.sizeHint().height();
}

}  // namespace orlo
