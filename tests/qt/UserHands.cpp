#include "qt/UserHands.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <QWindow>
#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "console/ControlPrinting.h"
#include "core/Text.h"
#include "desktop/ScreenText.h"

namespace orlo::test {
namespace {

constexpr int kMostTabs = 200;
constexpr int kMarkInset = 8;  // pixels from the left edge to within the mark of a check box

template <typename Widget>
Widget& As(const Control& control) {
    auto* found = qobject_cast<Widget*>(&WidgetOf(control));
    if (found == nullptr) throw std::runtime_error(Concat(control.name, " is another widget"));
    if (!found->isVisible()) throw std::runtime_error(Concat(control.name, " is not visible"));
    return *found;
}

QAction& ActionOf(const MenuEntry& entry) {
    auto* found = WindowOf(entry.form).findChild<QAction*>(QString::fromStdString(entry.name));
    if (found == nullptr) throw std::runtime_error(Concat(entry.name, " has no action"));
    return *found;
}

// A window that is used is the active one; the system sees to that on a press.
QWindow* Activated(QWidget& window) {
    if (!window.isActiveWindow() && QApplication::activePopupWidget() == nullptr) {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) throw std::runtime_error("the window stays inactive");
    }
    return window.windowHandle();
}

void ClickAction(QMenu& menu, QAction& action) {
    if (!QTest::qWaitFor([&] { return menu.isVisible(); }, 2000))
        throw std::runtime_error(Concat(menu.objectName().toStdString(), " doesn't open"));
    const QRect place = menu.actionGeometry(&action);
    if (!menu.rect().contains(place)) throw std::runtime_error("a menu entry is cut off");
    ClickAt(menu, place.center());
}

// By the scroll bar, as far as is needed to see the start of the column.
void ShowColumn(QTableView& table, int column) {
    const QHeaderView& header = *table.horizontalHeader();
    QScrollBar& bar = *table.horizontalScrollBar();
    const auto seen = [&] {
        const int start = header.sectionViewportPosition(column);
        return start >= 0 && start + header.sectionSize(column) / 2 < header.viewport()->width();
    };
    if (seen()) return;
    bar.setValue(bar.minimum());
    while (!seen() && bar.value() < bar.maximum()) bar.triggerAction(QScrollBar::SliderSingleStepAdd);
}

// Shows the row and returns its middle, in the list.
QPoint PlaceOfRow(const ListView& list, std::int32_t position) {
    auto& table = As<QTableView>(list);
    const QModelIndex index = table.model()->index(position, 0);
    if (!index.isValid()) throw std::runtime_error(Concat(list.name, " shows no row ", position));
    table.scrollTo(index);
    ShowColumn(table, 0);
    return table.viewport()->mapTo(&table, table.visualRect(index).center());
}

// Of a node in the tree as it is shown.
QModelIndex IndexOf(const TreeView& tree, std::int32_t node) {
    const QAbstractItemModel& model = *As<QTreeView>(tree).model();
    std::vector<int> rows;  // from the root
    for (std::int32_t at = node; at >= 0; at = tree.At(at).parent) {
        const std::int32_t parent = tree.At(at).parent;
        const std::vector<std::int32_t>& beside = parent < 0 ? tree.roots : tree.At(parent).children;
        const auto found = std::find(beside.begin(), beside.end(), at);
        rows.insert(rows.begin(), static_cast<int>(found - beside.begin()));
    }
    QModelIndex index;
    for (const int row : rows) index = model.index(row, 0, index);
    if (model.data(index).toString() != ToQString(tree.At(node).text))
        throw std::runtime_error(Concat(tree.name, " shows its nodes in another order"));
    return index;
}

std::string ListSeen(const ListView& list) {
    const QAbstractItemModel& model = *As<QTableView>(list).model();
    std::string text;
    for (int row = -1; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QVariant cell =
                row < 0 ? model.headerData(column, Qt::Horizontal) : model.data(model.index(row, column));
            text.append(column == 0 ? "" : "\t").append(cell.toString().toStdString());
        }
        text.append("\n");
    }
    return text;
}

}  // namespace

FormWindow& WindowOf(const Form& form) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = dynamic_cast<FormWindow*>(widget);
        if (window != nullptr && window->Shown() == &form) return *window;
    }
    throw std::runtime_error(Concat(form.name, " has no window"));
}

QWidget& WidgetOf(const Control& control) {
    auto* found = WindowOf(control.form).findChild<QWidget*>(QString::fromStdString(control.name));
    if (found == nullptr) throw std::runtime_error(Concat(control.name, " has no widget"));
    return *found;
}

void ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    QWidget& window = *widget.window();
    QTest::mouseClick(Activated(window), button, keys, widget.mapTo(&window, place));
}

void PressKeys(QWidget& window, const std::string& keys) {
    QWidget* popup = QApplication::activePopupWidget();
    QWindow* to = popup != nullptr ? popup->windowHandle() : Activated(window);
    const QKeyCombination key = QKeySequence(QString::fromStdString(keys))[0];
    QTest::keyClick(to, key.key(), key.keyboardModifiers());
}

void TypeText(QWidget& window, const std::string& text) {
    for (const char character : text) {
        if (character == '\n') {
            QTest::keyClick(window.windowHandle(), Qt::Key_Return);
        } else if (character != '\r') {
            QTest::keyClick(window.windowHandle(), character);
        }
    }
}

void ClickButton(const Control& control) {
    auto& button = As<QWidget>(control);
    ClickAt(button, QPoint(kMarkInset, button.height() / 2));
}

void ChooseMenuEntry(const MenuEntry& entry) {
    const Control* above = entry.parent;
    if (above == nullptr) throw std::runtime_error(Concat(entry.name, " is a menu"));
    std::vector<const MenuEntry*> path = {&entry};
    for (; above != nullptr; above = above->parent)
        path.insert(path.begin(), static_cast<const MenuEntry*>(above));
    QWidget& window = WindowOf(entry.form);
    QAction& root = ActionOf(*path.front());
    if (path.front()->popup) {
        QWidget* focus = window.focusWidget();
        if (focus == nullptr) throw std::runtime_error("nothing has the focus");
        ClickAt(*focus, focus->rect().center(), Qt::RightButton);
    } else {
        auto* bar = window.findChild<QMenuBar*>();
        ClickAt(*bar, bar->actionGeometry(&root).center());
    }
    QMenu* menu = root.menu();
    for (std::size_t i = 1; i < path.size(); ++i) {
        QAction& action = ActionOf(*path[i]);
        ClickAction(*menu, action);
        menu = action.menu();
    }
}

void ReplaceText(const Control& field, const std::string& text) {
    QWidget& window = WindowOf(field.form);
    QWidget& widget = As<QWidget>(field);
    ClickAt(widget, QPoint(kMarkInset, widget.height() / 2));
    PressKeys(window, "Ctrl+A");
    if (text.empty()) PressKeys(window, "Del");
    TypeText(window, text);
}

void ChooseComboEntry(const ComboBox& combo, std::int32_t place) {
    auto& shown = As<QComboBox>(combo);
    ClickAt(shown, QPoint(shown.width() - kMarkInset, shown.height() / 2));
    if (!QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 2000))
        throw std::runtime_error(Concat(combo.name, " doesn't drop down"));
    QWidget& window = WindowOf(combo.form);
    PressKeys(window, "Home");
    for (std::int32_t i = 0; i < place; ++i) PressKeys(window, "Down");
    PressKeys(window, "Return");
}

void ClickTab(const TabStrip& tabs, std::size_t page) {
    auto& bar = As<QTabBar>(tabs);
    ClickAt(bar, bar.tabRect(static_cast<int>(page)).center());
}

void ClickCheckMark(const TreeView& tree, std::int32_t node) {
    auto& shown = As<QTreeView>(tree);
    const QModelIndex index = IndexOf(tree, node);
    shown.scrollTo(index);  // opens the groups above it
    const QRect place = shown.visualRect(index);
    ClickAt(shown, shown.viewport()->mapTo(&shown, QPoint(place.left() + kMarkInset, place.center().y())));
}

void ClickRow(const ListView& list, std::int32_t position, Qt::KeyboardModifiers keys) {
    ClickAt(As<QTableView>(list), PlaceOfRow(list, position), Qt::LeftButton, keys);
}

void DoubleClickRow(const ListView& list, std::int32_t position) {
    auto& table = As<QTableView>(list);
    const QPoint place = table.mapTo(table.window(), PlaceOfRow(list, position));
    QTest::mouseDClick(Activated(*table.window()), Qt::LeftButton, {}, place);
}

void ClickColumn(const ListView& list, std::int32_t column) {
    auto& table = As<QTableView>(list);
    ShowColumn(table, column);
    QHeaderView& header = *table.horizontalHeader();
    const int left = header.sectionViewportPosition(column);
    ClickAt(*header.viewport(), QPoint(left + header.sectionSize(column) / 3, header.height() / 2));
}

void GoTo(const Control& control) {
    FormWindow& window = WindowOf(control.form);
    for (int i = 0; i < kMostTabs && window.FocusControl() != &control; ++i) PressKeys(window, "Tab");
    if (window.FocusControl() != &control)
        throw std::runtime_error(Concat("the tab key doesn't reach ", control.name));
}

Qt::DropAction DropOn(QWidget& widget, const QMimeData& data) {
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(3, 3), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted()) return Qt::IgnoreAction;
    QDropEvent drop(QPointF(3, 3), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &drop);
    return drop.dropAction();
}

void RestOn(const Control& control, std::int32_t node) {
    QWidget* widget = &As<QWidget>(control);
    QPoint place(kMarkInset, widget->height() - kMarkInset);
    if (auto* tree = qobject_cast<QTreeView*>(widget)) {
        widget = tree->viewport();
        if (node >= 0) {
            const QModelIndex index = IndexOf(static_cast<const TreeView&>(control), node);
            tree->scrollTo(index);
            place = tree->visualRect(index).center();
        }
    }
    QHelpEvent rest(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &rest);
}

std::string PopupOf(const Control& control) {
    auto& widget = As<QWidget>(control);
    ClickAt(widget, widget.rect().center(), Qt::RightButton);
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr) return {};
    QWidget& window = WindowOf(control.form);
    const QList<QAction*> actions = window.findChildren<QAction*>();
    const auto root = std::find_if(actions.begin(), actions.end(),
                                   [&](const QAction* action) { return action->menu() == popup; });
    PressKeys(window, "Esc");
    return root == actions.end() ? std::string() : (*root)->objectName().toStdString();
}

bool SeenEnabled(const Control& control) {
    if (control.kind == ControlKind::MenuEntry)
        return ActionOf(static_cast<const MenuEntry&>(control)).isEnabled();
    return WidgetOf(control).isEnabled();
}

std::string Seen(const Control& control) {
    const auto line = [](const QString& text) { return text.toStdString() + '\n'; };
    switch (control.kind) {
        case ControlKind::Label:
        case ControlKind::StatusBar:
            return line(As<QLabel>(control).text());
        case ControlKind::TextBox:
            if (static_cast<const TextBox&>(control).style != TextBoxStyle::SingleLine)
                return line(As<QPlainTextEdit>(control).toPlainText().replace("\n", "\\n"));
            return line(As<QLineEdit>(control).text());
        case ControlKind::ComboBox:
            return line(As<QComboBox>(control).currentText());
        case ControlKind::Button:
            return line(As<QPushButton>(control).text());
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            return line(As<QAbstractButton>(control).isChecked() ? "on" : "off");
        case ControlKind::MenuEntry: {
            const QAction& action = ActionOf(static_cast<const MenuEntry&>(control));
            return line(!action.isCheckable() ? action.text() : action.isChecked() ? "on" : "off");
        }
        case ControlKind::ListView:
            return ListSeen(static_cast<const ListView&>(control));
        default: {
            // Colours and tags of nodes have no words on a screen.
            std::ostringstream out;
            PrintControl(out, control);
            return out.str();
        }
    }
}

}  // namespace orlo::test
