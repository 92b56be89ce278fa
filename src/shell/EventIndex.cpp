#include "shell/EventIndex.h"

#include "core/Text.h"

namespace orlo {
namespace {

const void* TargetOf(const Form* form, const Control* control) {
    return control != nullptr ? static_cast<const void*>(control) : form;
}

}  // namespace

bool EventIndex::Add(Form& form, EventTable table) {
    bool added = true;
    for (const EventEntry& entry : table) {
        if (entry.kind == EventKind::Timer) {
            added &= timers_.try_emplace(UpperText(entry.timer), &entry).second;
            continue;
        }
        const Control* control = entry.control == nullptr ? nullptr : &entry.control(form);
        added &= entries_.try_emplace({TargetOf(&form, control), entry.kind}, &entry).second;
    }
    return added;
}

const EventEntry* EventIndex::Find(const Event& event) const {
    if (event.kind == EventKind::Timer) {
        const auto timer = timers_.find(UpperText(event.name));
        return timer == timers_.end() ? nullptr : timer->second;
    }
    const auto found = entries_.find({TargetOf(event.form, event.control), event.kind});
    return found == entries_.end() ? nullptr : found->second;
}

}  // namespace orlo
