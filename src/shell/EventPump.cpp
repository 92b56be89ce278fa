#include "shell/EventPump.h"

#include <algorithm>
#include <exception>
#include <new>

#include "core/Text.h"
#include "shell/EventTables.h"

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

int EventPump::EnterModal() {
    const int outer = running_;
    running_ = 0;
    return outer;
}

bool EventPump::Accepts(const Event& event) const {
    if (event.kind == EventKind::Timer || event.kind == EventKind::Hover) return true;
    if (event.form == nullptr || !windows_.IsOpen(*event.form)) return false;
    const Form* top = windows_.TopModal();
    if (top != event.form && (top != nullptr || running_ > 0)) return false;
    if (event.kind == EventKind::Close) return true;
    return event.form->enabled && (event.control == nullptr || event.control->EffectivelyEnabled());
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
    const EventEntry* entry = FindEvent(context_, event);
    if (entry == nullptr) return;
    if (entry->procedure == nullptr) {
        context_.services.windows.ShowNotBuilt(entry->control);
        return;
    }
    ++running_;
    try {
        entry->procedure(context_, event);
    } catch (const std::bad_alloc&) {
        RecoverFromFailure("not enough memory");
    } catch (const std::exception& failure) {
        RecoverFromFailure(failure.what());
    }
    --running_;
}

// What an operation that broke off may have left behind.
void EventPump::RecoverFromFailure(std::string_view reason) {
    MainForm& form = context_.forms.frmMain;
    context_.services.progress.Close();
    form.enabled = true;
    form.pointer = PointerShape::Normal;
    form.frozen = 0;
    form.HandlingNodeCheck = false;
    form.tvShuffleAircraft.visible = context_.session.PlanLoaded;
    form.tvMoveAircrafts.visible = context_.session.PlanLoaded;
    form.sbMain.text = Concat("The operation ended early: ", reason, ".");
}

}  // namespace orlo
