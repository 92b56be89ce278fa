#pragma once

#include <map>
#include <string>
#include <utility>

#include "forms/Event.h"

namespace orlo {

// Finds the entry of the event tables that an event runs.
class EventIndex {
  public:
    // Form and table must outlive this. False where an entry is for an event that has one already; then the
    // older one stays, and all others are added.
    bool Add(Form& form, EventTable table);

    // Null where no entry is for the event.
    const EventEntry* Find(const Event& event) const;

  private:
    using Key = std::pair<const void*, EventKind>;  // control, or form for an event of the form itself
    std::map<Key, const EventEntry*> entries_;
    std::map<std::string, const EventEntry*> timers_;  // by upper-cased name
};

}  // namespace orlo
