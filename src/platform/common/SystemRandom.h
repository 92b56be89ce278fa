#pragma once

#include <cstdint>
#include <optional>
#include <random>

#include "services/RandomSource.h"

namespace orlo {

// Random values with 53 bits, the same on every system for the same seed.
class SystemRandom : public RandomSource {
  public:
    // Seeds at once. With a fixed seed every SeedFromClock starts the same sequence of values again.
    explicit SystemRandom(std::optional<std::uint64_t> fixedSeed = std::nullopt);

    double Next() override;
    void SeedFromClock() override;

  private:
    std::optional<std::uint64_t> fixedSeed_;
    std::mt19937_64 generator_;
};

}  // namespace orlo
