#pragma once

#include "desktop/EventSink.h"

class QObject;

namespace orlo {

class FormWindow;

// What the input filter asks of the front end that it watches.
class InputSink : public EventSink {
  public:
    // Whether the user may use the window at all now.
    virtual bool TakesInput(const FormWindow& window) const = 0;
    // Runs the event at once, after what is queued.
    virtual void DeliverNow(Event& event) = 0;
    // Runs what is queued and draws what it changed in the window.
    virtual void CatchUp(FormWindow& window) = 0;
    // The window of a widget or of the system's window; null for another's.
    virtual FormWindow* WindowOf(QObject* object) = 0;
    // How many dialogs of the toolkit have been shown so far.
    virtual int DialogsShown() const = 0;
};

}  // namespace orlo
