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

// Runs events one at a time. An event is dropped, when it arrives or when its turn comes, if
// - its form isn't open, or stands under a modal one,
// - its form or control is disabled, or
// - an operation runs and no modal form is open.
// Timers and Hover always run, Resize on any open form, the close box of a disabled form where no operation
// runs, and that of the main window while an operation waits for an outside tool.
class EventPump {
  public:
    // Takes the event tables of all forms of the context, which must outlive this.
    explicit EventPump(Context& context);
    EventPump(const EventPump&) = delete;
    EventPump& operator=(const EventPump&) = delete;

    OpenForms& Windows() { return windows_; }

    // Adds the events of a form that isn't one of the program's own, such as a test's. Form and table must
    // outlive the pump.
    void AddTable(Form& form, EventTable table) { events_.Add(form, table); }

    // Whether the event would run now.
    bool Accepts(const Event& event) const;
    // Whether the user may use the form now: no modal form above it, no operation that keeps it waiting.
    bool TakesInput(const Form& form) const;

    // Queues the event if it is accepted.
    void Post(const Event& event);
    // Empties the queue: runs each event that is accepted when its turn comes.
    void RunQueued();
    // Runs one event at once. False when it was dropped or its procedure refused it.
    bool Deliver(Event& event);

    // Says in the status bar that a drawing failed, and why.
    void TellFailure(std::string_view reason);

    bool OperationRuns() const { return running_ > 0; }

    // Opens the form as the topmost modal one. Until LeaveModal no operation counts as running, so that the
    // form's events run. The result is `outer` for LeaveModal, which closes the form and clears its close
    // request.
    int EnterModal(Form& form, Form* owner);
    void LeaveModal(Form& form, int outer);

  private:
    bool MeansTool(const Event& close) const;
    void Run(Event& event);
    void RecoverFromFailure(Form* shown, std::string_view reason);

    Context& context_;
    OpenForms windows_;
    EventIndex events_;
    std::deque<Event> queue_;
    int running_ = 0;  // procedures on the stack since the topmost modal form opened
};

}  // namespace orlo
