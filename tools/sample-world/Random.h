#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orlo::world {

// A small generator (splitmix64) that gives the same numbers on every platform, unlike the library's
// distributions.
class Random {
  public:
    // Each part of the world draws from a stream of its own, so that a longer plan leaves the airports as
    // they are.
    enum class Stream : std::uint64_t { Airports = 1, Aircraft = 2, Rules = 3, Plan = 4 };

    Random(std::uint64_t seed, Stream stream)
        : state(seed * 0x9E3779B97F4A7C15u + static_cast<std::uint64_t>(stream)) {
        Next();
    }

    // A whole number from 0 to `count` - 1; `count` is at least 1.
    std::uint32_t Below(std::uint32_t count) {
        return static_cast<std::uint32_t>(((Next() >> 32) * count) >> 32);
    }

    // A whole number from `low` to `high`, both included.
    int Between(int low, int high) {
        return low + static_cast<int>(Below(static_cast<std::uint32_t>(high - low + 1)));
    }

    bool Percent(int percent) { return Between(0, 99) < percent; }

    template <class List>
    const auto& Pick(const List& list) {
        return list[Below(static_cast<std::uint32_t>(list.size()))];
    }

  private:
    std::uint64_t Next() {
        state += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t state;
};

// A tail number by a pattern in which "!" stands for a digit and "." for a capital letter.
std::string DrawTailNumber(Random& random, std::string_view pattern);

}  // namespace orlo::world
