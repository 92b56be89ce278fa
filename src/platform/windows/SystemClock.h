#pragma once

#include "services/Clock.h"

namespace orlo {

class SystemClock : public Clock {
  public:
    std::int64_t Now() const override;
    std::string ShortText() const override;
};

}  // namespace orlo
