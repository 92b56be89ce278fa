#pragma once

#include <QString>
#include <QWidget>
#include <string>

#include "desktop/FormWindow.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/TreeView.h"

class QMimeData;

namespace orlo::test {

// What a user does to a control by mouse and keyboard, by way of the system's window. Each throws
// std::runtime_error where the control can't be seen. All return before the events that they cause have run.

FormWindow& WindowOf(const Form& form);
QWidget& WidgetOf(const Control& control);

void ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers keys = Qt::NoModifier);
// To the pop-up that is open, else to the window.
void PressKeys(QWidget& window, const std::string& keys);  // as "Alt+F"
// Return for each line end.
void TypeText(QWidget& window, const std::string& text);

void ClickButton(const Control& control);  // also a check box and an option button
// Opens the menus above the entry and chooses it; a pop-up menu by the right button on what has the focus.
void ChooseMenuEntry(const MenuEntry& entry);
void ReplaceText(const Control& field, const std::string& text);  // of a text box or an editable combo box
void ChooseComboEntry(const ComboBox& combo, std::int32_t place);
void ClickTab(const TabStrip& tabs, std::size_t page);
void ClickCheckMark(const TreeView& tree, std::int32_t node);
void ClickRow(const ListView& list, std::int32_t position, Qt::KeyboardModifiers keys = Qt::NoModifier);
void DoubleClickRow(const ListView& list, std::int32_t position);
void ClickColumn(const ListView& list, std::int32_t column);
// Goes there by the tab key.
void GoTo(const Control& control);
// What was taken of copying and moving; nothing where the drop was refused.
Qt::DropAction DropOn(QWidget& widget, const QMimeData& data);
void RestOn(const Control& control, std::int32_t node);  // -1: beside the nodes of a tree
// The name of the pop-up menu that a right click opens, and Escape closes again; empty for none.
std::string PopupOf(const Control& control);

// What stands on the screen, in the words of the console.
std::string Seen(const Control& control);
bool SeenEnabled(const Control& control);

}  // namespace orlo::test
