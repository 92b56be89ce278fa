#pragma once

namespace orlo {

class RandomSource {
  public:
    virtual ~RandomSource() = default;

    virtual double Next() = 0;         // in [0, 1)
    virtual void SeedFromClock() = 0;  // by a fixed seed instead, where one was given
};

}  // namespace orlo
