#include "platform/common/SystemRandom.h"

#include <chrono>

namespace orlo {
namespace {

constexpr int kUnusedBits = 64 - 53;                // a double holds 53 bits
constexpr double kStep = 1.0 / 9007199254740992.0;  // 2 to the power of -53

}  // namespace

SystemRandom::SystemRandom(std::optional<std::uint64_t> fixedSeed) : fixedSeed_(fixedSeed) {
    SeedFromClock();
}

// Not by a distribution of the standard library: these differ from one library to the next, the generator
// does not.
double SystemRandom::Next() {
    return static_cast<double>(generator_() >> kUnusedBits) * kStep;
}

void SystemRandom::SeedFromClock() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    generator_.seed(fixedSeed_.value_or(static_cast<std::uint64_t>(ticks)));
}

}  // namespace orlo
