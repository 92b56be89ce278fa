#include "shell/EventTables.h"

#include "core/Text.h"

namespace orlo {

EventTable EventsOf(const Forms& forms, const Form& form) {
    if (&form == &forms.frmMain) return MainEvents();
    if (&form == &forms.frmSplash) return SplashEvents();
    if (&form == &forms.frmAbout) return AboutEvents();
    if (&form == &forms.frmFlightEdit) return FlightEditEvents();
    return {};
}

const EventEntry* FindEvent(EventTable table, const Event& event) {
    const std::string_view name = event.kind == EventKind::Timer ? event.name
                                  : event.control != nullptr     ? event.control->name
                                                                 : std::string_view();
    for (const EventEntry& entry : table) {
        if (entry.kind == event.kind && EqualNoCase(entry.control, name)) return &entry;
    }
    return nullptr;
}

const EventEntry* FindEvent(const Context& context, const Event& event) {
    const bool timer = event.kind == EventKind::Timer;
    const Form& form = timer ? static_cast<const Form&>(context.forms.frmMain) : *event.form;
    return FindEvent(EventsOf(context.forms, form), event);
}

void RunButton(Context& context, Button& button) {
    if (!button.EffectivelyEnabled()) return;
    Event event{&button.form, &button, EventKind::Click};
    const EventEntry* entry = FindEvent(context, event);
    if (entry == nullptr) return;
    if (entry->procedure == nullptr) return context.services.windows.ShowNotBuilt(entry->control);
    entry->procedure(context, event);
}

}  // namespace orlo
