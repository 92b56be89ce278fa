#pragma once

#include "forms/Event.h"

namespace orlo {

// Where the binders of a window hand on what the user does.
class EventSink {
  public:
    virtual ~EventSink() = default;

    // Whether the event would be taken now; the form is written only if so.
    virtual bool Accepts(const Event& event) const = 0;
    // Queues the event; it runs once the toolkit has finished what it does now.
    virtual void Post(const Event& event) = 0;
};

}  // namespace orlo
