#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "Airports.h"
#include "Fleet.h"
#include "Random.h"

namespace orlo::world {

constexpr int MostLegs = 6;

// A round of 2 to 6 legs that begins and ends at its last stop. Leg i runs from stop i - 1 to stop i, leg 0
// from the last one.
struct Round {
    int LegCount = 0;
    std::array<int, MostLegs> Stops{};      // indexes of airports
    std::array<int, MostLegs> Distances{};  // nautical miles
};

// Draws rounds whose airports and legs suit aircraft of a class.
class RoundDrawer {
  public:
    RoundDrawer(const std::vector<Airport>& airports, Random& random);

    // Nothing comes back when some dozens of tries find no round.
    std::optional<Round> Draw(AircraftClass wanted);

    // From `home` to `away` and back, whatever flies there.
    Round OutAndBack(int home, int away) const;

  private:
    bool Suits(int airport, AircraftClass wanted) const;
    std::optional<int> DrawStart(AircraftClass wanted);
    std::optional<int> DrawStop(int from, AircraftClass wanted);
    bool FillTriangle(Round& round, AircraftClass wanted);
    bool FillHubRound(Round& round, AircraftClass wanted);
    double Chord(int from, int to) const;
    void MeasureLegs(Round& round) const;

    const std::vector<Airport>& airports;
    Random& random;
    std::array<double, ClassCount> shortest{}, longest{};  // squared chords of the legs of each class
};

// Whether the course between two places lies within 0 to 179 degrees.
bool FliesEast(const Airport& from, const Airport& to);

}  // namespace orlo::world
