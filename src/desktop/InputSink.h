#pragma once

#include "desktop/EventSink.h"

class QObject;

namespace orlo {

class FormWindow;

// What the input filter needs of the front end.
class InputSink : public EventSink {
  public:
    // Whether the user may use the window now. False after its Release.
    virtual bool TakesInput(const FormWindow& window) const = 0;
    // Runs what is queued, then the event, at once.
    virtual void DeliverNow(Event& event) = 0;
    // Runs what is queued and draws what it changed in the window.
    virtual void CatchUp(FormWindow& window) = 0;
    // The form's window that holds the widget, or that the system's window belongs to; null where none does.
    virtual FormWindow* WindowOf(QObject* object) = 0;
    // How many dialogs of the toolkit have been shown so far.
    virtual int DialogsShown() const = 0;
};

}  // namespace orlo
