#pragma once

#include <deque>
#include <vector>

#include "forms/Event.h"
#include "mainwindow/Context.h"
#include "shell/EventIndex.h"

namespace orlo {

// The windows that are open, the topmost first, and which of them are modal.
struct OpenForms {
    std::vector<Form*> forms;
    std::vector<Form*> modal;  // topmost first

    void Show(Form& form);
    void Unload(Form& form);
    bool IsOpen(const Form& form) const;
    // The topmost modal form; without one, null: all open forms take events.
    Form* TopModal() const { return modal.empty() ? nullptr : modal.front(); }
};

// Runs events one at a time. An event for a form under a modal one, for a control that is disabled by now,
// or, while an operation lets events run, for any form but the topmost modal one, is dropped, both when it
// arrives and when its turn comes. Timers always run.
class EventPump {
  public:
    // Over all forms of the context.
    explicit EventPump(Context& context);
    EventPump(const EventPump&) = delete;
    EventPump& operator=(const EventPump&) = delete;

    OpenForms& Windows() { return windows_; }

    // The events of a form that isn't one of the program's own; the form stays open no longer than the pump.
    void AddTable(Form& form, EventTable table) { events_.Add(form, table); }

    // Whether the event would run now.
    bool Accepts(const Event& event) const;
    // Whether the user may use the form at all now.
    bool TakesInput(const Form& form) const;

    // Queues the event; one that isn't accepted is dropped.
    void Post(const Event& event);
    // Runs what is queued, or drops it.
    void RunQueued();
    // Runs one event at once. False when it was dropped or its procedure refused it.
    bool Deliver(Event& event);

    // Puts into the status bar that something failed outside any procedure.
    void TellFailure(std::string_view reason);

    bool OperationRuns() const { return running_ > 0; }

    // Opens the form as the topmost modal one, with a round of events of its own above the operation that
    // shows it. The result goes to LeaveModal, which takes the form's close request and closes it.
    int EnterModal(Form& form, Form* owner);
    void LeaveModal(Form& form, int outer);

  private:
    void Run(Event& event);
    void RecoverFromFailure(Form* shown, std::string_view reason);

    Context& context_;
    OpenForms windows_;
    EventIndex events_;
    std::deque<Event> queue_;
    int running_ = 0;
};

}  // namespace orlo
