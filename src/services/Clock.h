#pragma once

#include <cstdint>

namespace orlo {

class Clock {
  public:
    virtual ~Clock() = default;

    // Local time as whole seconds since 1970-01-01 00:00:00.
    virtual std::int64_t Now() const = 0;
};

}  // namespace orlo
