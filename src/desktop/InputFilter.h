#pragma once

#include <QObject>

#include "forms/Event.h"

class QContextMenuEvent;
class QDropEvent;
class QHelpEvent;
class QKeyEvent;
class QMouseEvent;
class QPoint;
class QShortcutEvent;
class QWidget;

namespace orlo {

class FormWindow;
class InputSink;
struct Control;

// Sees what the user does before any widget does. It drops what the form takes no input for, asks the field
// that is about to lose the focus, and makes events of keys, right clicks and a resting pointer. Leave, Popup
// and Hover run at once instead of from the queue, since the toolkit has to know the outcome; no widget is
// handling anything then.
class InputFilter : public QObject {
  public:
    explicit InputFilter(InputSink& sink) : sink_(sink) {}

    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    bool Press(FormWindow& window, QObject* object, QMouseEvent& event);
    bool Release(QMouseEvent& event);
    bool Key(FormWindow& window, QObject* object, QKeyEvent& event);
    void KeyReleased(FormWindow& window, QObject* object, QKeyEvent& event);
    bool Shortcut(FormWindow& window, QObject* object, const QShortcutEvent& event);
    static bool Wheel(FormWindow& window, QObject* object);
    bool Popup(FormWindow& window, const QWidget* widget, const QPoint& place);
    bool DragFile(FormWindow& window, QDropEvent& event);
    bool Hover(FormWindow& window, QObject* object, QHelpEvent& event);
    // The pop-up menu and the tip of the current row, where a list or tree has the focus. False where none
    // has.
    bool PopupOfCurrent(FormWindow& window);
    bool TipOfCurrent(FormWindow& window);
    // Selects the tab `steps` after the current one; the first follows the last. False where no tab strip is
    // shown.
    bool TurnTab(FormWindow& window, int steps);
    void FocusIn(FormWindow& window, QObject* object);
    // Asks the field that has the focus before `to` gets it, null for the next control. False on a refusal.
    bool Leaves(FormWindow& window, const Control* to);

    InputSink& sink_;
    int swallowedButton_ = 0;  // its press was dropped and its release is to be; 0 for none
    // Delete or Insert, pressed without Shift, Ctrl or Alt and not released yet, and where.
    EventKey pressedKey_ = kKeyOther;
    const Control* pressedOn_ = nullptr;
};

}  // namespace orlo
