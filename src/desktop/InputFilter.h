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

// Sees what the user does before any widget does: drops it where no form takes it, asks the field that is
// about to lose the focus, and turns keys, right clicks and a resting pointer into events. These are the only
// events that run at once instead of from the queue, since the toolkit has to know the outcome; no widget is
// in the middle of anything then.
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
    // The pop-up and the tip of a list's or tree's current row, for the keyboard.
    bool PopupOfCurrent(FormWindow& window);
    bool TipOfCurrent(FormWindow& window);
    // Shows the tab `steps` behind the current one, round and round. False where the form has no tabs.
    bool TurnTab(FormWindow& window, int steps);
    void FocusIn(FormWindow& window, QObject* object);
    // False when the field that has the focus refuses to lose it to `to`, which is null for the next control.
    bool Leaves(FormWindow& window, const Control* to);

    InputSink& sink_;
    int swallowedButton_ = 0;  // whose release follows a press that was dropped
    // Delete or Insert, pressed alone and not released yet, and where.
    EventKey pressedKey_ = kKeyOther;
    const Control* pressedOn_ = nullptr;
};

}  // namespace orlo
