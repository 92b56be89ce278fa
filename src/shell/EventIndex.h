#pragma once

#include <map>
#include <string>
#include <utility>

#include "forms/Event.h"

namespace orlo {

// Finds what an event runs.
class EventIndex {
  public:
    // The form must outlive this. False where an entry names what another one names already, which then
    // stays.
    bool Add(Form& form, EventTable table);

    // Null where nothing is to run.
    const EventEntry* Find(const Event& event) const;

  private:
    using Key = std::pair<const void*, EventKind>;  // control, or form for an event of the form itself
    std::map<Key, const EventEntry*> entries_;
    std::map<std::string, const EventEntry*> timers_;  // by upper-cased name
};

}  // namespace orlo
