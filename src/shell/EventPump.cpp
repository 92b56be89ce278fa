#include "shell/EventPump.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

#include "core/Text.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/StatusTexts.h"
#include "shell/FormFacts.h"
#include "shell/Title.h"

namespace orlo {

void OpenForms::Show(Form& form) {
    Unload(form);
    forms.insert(forms.begin(), &form);
    form.visible = true;
}

void OpenForms::Unload(Form& form) {
    std::erase(forms, &form);
    std::erase(modal, &form);
    form.visible = false;
}

bool OpenForms::IsOpen(const Form& form) const {
    return std::find(forms.begin(), forms.end(), &form) != forms.end();
}

EventPump::EventPump(Context& context) : context_(context) {
    for (const FormFacts& facts : AllForms()) {
        for (const EventTable table : facts.events()) events_.Add(facts.form(context.forms), table);
    }
}

int EventPump::EnterModal(Form& form, Form* owner) {
    form.owner = owner;
    form.closeRequest = false;
    windows_.Show(form);
    windows_.modal.insert(windows_.modal.begin(), &form);
    return std::exchange(running_, 0);
}

void EventPump::LeaveModal(Form& form, int outer) {
    running_ = outer;
    windows_.Unload(form);
    form.closeRequest = false;
}

bool EventPump::TakesInput(const Form& form) const {
    // A form that isn't open may be gone.
    if (!windows_.IsOpen(form) || !form.enabled) return false;
    const Form* top = windows_.TopModal();
    return top == &form || (top == nullptr && running_ == 0);
}

// Whether a close box is the main window's while the operation that runs waits for an outside tool.
bool EventPump::MeansTool(const Event& close) const {
    return close.form == &context_.forms.frmMain && !context_.session.tool.Running.empty();
}

bool EventPump::Accepts(const Event& event) const {
    if (event.kind == EventKind::Timer || event.kind == EventKind::Hover) return true;
    if (event.form == nullptr) return false;
    // A window has changed its size whether the user may use it or not.
    if (event.kind == EventKind::Resize) return windows_.IsOpen(*event.form);
    if (event.kind == EventKind::Close && (running_ == 0 || MeansTool(event))) {
        // Also of a disabled form: one that was left disabled by mistake can still be closed.
        const Form* top = windows_.TopModal();
        return windows_.IsOpen(*event.form) && (top == nullptr || top == event.form);
    }
    return TakesInput(*event.form) && (event.control == nullptr || event.control->EffectivelyEnabled());
}

void EventPump::Post(const Event& event) {
    if (Accepts(event)) queue_.push_back(event);
}

void EventPump::RunQueued() {
    while (!queue_.empty()) {
        Event event = queue_.front();
        queue_.pop_front();
        Deliver(event);
    }
}

bool EventPump::Deliver(Event& event) {
    if (!Accepts(event)) return false;
    Run(event);
    return !event.refused;
}

void EventPump::Run(Event& event) {
    const EventEntry* entry = events_.Find(event);
    if (entry == nullptr) {
        // Nothing else could close a modal form whose close box has no procedure.
        if (event.kind == EventKind::Close && windows_.TopModal() == event.form)
            event.form->closeRequest = true;
        return;
    }
    ++running_;
    // An event within another, such as one of a modal form, tells what it has to say itself.
    auto outside = std::exchange(context_.session.kept.Notes, {});
    try {
        entry->procedure(context_, event);
    } catch (const std::bad_alloc&) {
        RecoverFromFailure(event.form, "not enough memory");
    } catch (const std::exception& failure) {
        RecoverFromFailure(event.form, failure.what());
    }
    --running_;
    TellNotes(context_);
    context_.session.kept.Notes = std::move(outside);
    RefreshTitle(context_);
    if (event.presses != nullptr) {
        Event press{&event.presses->form, event.presses, EventKind::Click};
        Deliver(press);
    }
}

// Puts right what an operation that broke off may have left: the progress display, forms that are disabled,
// frozen or under an hourglass, trees that are hidden.
void EventPump::RecoverFromFailure(Form* shown, std::string_view reason) {
    MainForm& main = context_.forms.frmMain;
    context_.services.progress.Close();
    for (Form* form : {shown, static_cast<Form*>(&main)}) {
        if (form == nullptr) continue;
        form->enabled = true;
        form->pointer = PointerShape::Normal;
        form->frozen = 0;
    }
    main.HandlingNodeCheck = false;
    main.tvShuffleAircraft.visible = context_.session.plan.PlanLoaded;
    main.tvMoveAircrafts.visible = context_.session.plan.PlanLoaded;
    EnableAll(context_);
    main.sbMain.text = Concat("The operation ended early: ", reason, ".");
}

void EventPump::TellFailure(std::string_view reason) {
    context_.forms.frmMain.sbMain.text = Concat("The screen could not be drawn: ", reason, ".");
}

}  // namespace orlo
