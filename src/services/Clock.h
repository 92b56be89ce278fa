#pragma once

#include <cstdint>
#include <string>

namespace orlo {

class Clock {
  public:
    virtual ~Clock() = default;

    // Local time as whole seconds since 1970-01-01 00:00:00.
    virtual std::int64_t Now() const = 0;
    // Date and time of now in the system's short form, as UTF-8.
    virtual std::string ShortText() const = 0;
};

}  // namespace orlo
