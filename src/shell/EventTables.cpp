#include "shell/EventTables.h"

#include "core/Text.h"

namespace orlo {

EventTable EventsOf(const Forms& forms, const Form& form) {
    if (&form == &forms.frmMain) return MainEvents();
    return {};
}

const EventEntry* FindEvent(const Context& context, const Event& event) {
    const bool timer = event.kind == EventKind::Timer;
    const Form& form = timer ? static_cast<const Form&>(context.forms.frmMain) : *event.form;
    const std::string_view name = timer                      ? event.name
                                  : event.control != nullptr ? event.control->name
                                                             : std::string_view();
    for (const EventEntry& entry : EventsOf(context.forms, form)) {
        if (entry.kind == event.kind && EqualNoCase(entry.control, name)) return &entry;
    }
    return nullptr;
}

}  // namespace orlo
