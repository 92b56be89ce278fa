#pragma once

namespace orlo {

class RandomSource {
  public:
    virtual ~RandomSource() = default;

    virtual double Next() = 0;         // in [0, 1)
    virtual void SeedFromClock() = 0;  // a fixed seed, where one was given, takes the clock's place
};

}  // namespace orlo
