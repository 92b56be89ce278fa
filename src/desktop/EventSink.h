#pragma once

#include "forms/Event.h"

namespace orlo {

// Takes the events that a window and its binders make of what the user does.
class EventSink {
  public:
    virtual ~EventSink() = default;

    // Whether the event would run now. Only then may the form be written for it.
    virtual bool Accepts(const Event& event) const = 0;
    // Queues the event. It runs, if it is still accepted, when the toolkit has finished what it does now.
    virtual void Post(const Event& event) = 0;
};

}  // namespace orlo
