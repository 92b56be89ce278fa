#include "Rounds.h"

#include <algorithm>

namespace orlo::world {

namespace {

// The legs that a class flies in the plan: well within what its aircraft can do, so that others can take
// over. `Reach` is how far in the list of airports the next stop is looked for; 0 is the whole world.
struct Band {
    int Shortest, Longest;  // nautical miles
    int Reach;
};
constexpr Band Bands[ClassCount] = {
    {15, 180, 12},    {20, 250, 12},  {60, 390, 40},   {110, 1200, 400},
    {130, 1550, 800}, {720, 4400, 0}, {1850, 7000, 0},
};

// Surfaces that the runway types "HARD", "SOFT" and "WATER" name.
bool IsHard(int surface) {
    return surface == Concrete || surface == Asphalt;
}
bool IsSoft(int surface) {
    return surface == Grass || surface == Gravel;
}

}  // namespace

RoundDrawer::RoundDrawer(const std::vector<Airport>& airports_, Random& random_)
    : airports(airports_), random(random_) {
    for (std::size_t c = 0; c < ClassCount; ++c) {
        shortest[c] = SquaredChordOf(Bands[c].Shortest);
        longest[c] = SquaredChordOf(Bands[c].Longest);
    }
}

bool RoundDrawer::Suits(int airport, AircraftClass wanted) const {
    const Airport& place = airports[static_cast<std::size_t>(airport)];
    const Performance& can = ClassRows[wanted].Profile;
    const bool soft = wanted <= MidProp && IsSoft(place.LongestSurface);
    return (IsHard(place.LongestSurface) || soft) && place.LongestRunway >= can.RunwayLength &&
           place.SmallestParking >= can.MinParkingRadius;
}

// Of two airports the one with the longer runway, as a rule, so that large airports see more traffic.
std::optional<int> RoundDrawer::DrawStart(AircraftClass wanted) {
    const int last = static_cast<int>(airports.size()) - 1;
    int start = random.Between(0, last);
    const int other = random.Between(0, last);
    const auto longestRunway = [&](int airport) {
        return airports[static_cast<std::size_t>(airport)].LongestRunway;
    };
    if (wanted >= LargeProp && random.Percent(80) && longestRunway(other) > longestRunway(start))
        start = other;
    if (!Suits(start, wanted)) return std::nullopt;
    return start;
}

double RoundDrawer::Chord(int from, int to) const {
    return SquaredChord(airports[static_cast<std::size_t>(from)].Position,
                        airports[static_cast<std::size_t>(to)].Position);
}

std::optional<int> RoundDrawer::DrawStop(int from, AircraftClass wanted) {
    const int last = static_cast<int>(airports.size()) - 1, reach = Bands[wanted].Reach;
    const int low = reach == 0 ? 0 : std::max(0, from - reach),
              high = reach == 0 ? last : std::min(last, from + reach);
    for (int tries = 0; tries < 24; ++tries) {
        const int stop = random.Between(low, high);
        if (!Suits(stop, wanted)) continue;
        const double chord = Chord(from, stop);
        const auto c = static_cast<std::size_t>(wanted);
        if (chord >= shortest[c] && chord <= longest[c]) return stop;
    }
    return std::nullopt;
}

bool RoundDrawer::FillTriangle(Round& round, AircraftClass wanted) {
    const auto first = DrawStop(round.Stops[2], wanted);
    if (!first) return false;
    const auto second = DrawStop(*first, wanted);
    if (!second || *second == round.Stops[2]) return false;
    const double chord = Chord(*second, round.Stops[2]);
    const auto c = static_cast<std::size_t>(wanted);
    if (chord < shortest[c] || chord > longest[c]) return false;
    round.Stops[0] = *first;
    round.Stops[1] = *second;
    return true;
}

// Out and back, once to three times.
bool RoundDrawer::FillHubRound(Round& round, AircraftClass wanted) {
    const int hub = round.Stops[static_cast<std::size_t>(round.LegCount - 1)];
    for (std::size_t i = 0; i < static_cast<std::size_t>(round.LegCount); i += 2) {
        const auto stop = DrawStop(hub, wanted);
        if (!stop) return false;
        round.Stops[i] = *stop;
        round.Stops[i + 1] = hub;
    }
    return true;
}

void RoundDrawer::MeasureLegs(Round& round) const {
    int from = round.Stops[static_cast<std::size_t>(round.LegCount - 1)];
    for (std::size_t i = 0; i < static_cast<std::size_t>(round.LegCount); ++i) {
        round.Distances[i] = DistanceOf(Chord(from, round.Stops[i]));
        from = round.Stops[i];
    }
}

std::optional<Round> RoundDrawer::Draw(AircraftClass wanted) {
    static constexpr int shortRounds[] = {2, 2, 3, 4, 4, 6}, longRounds[] = {2, 2, 2, 3, 4};
    for (int tries = 0; tries < 40; ++tries) {
        const auto start = DrawStart(wanted);
        if (!start) continue;
        Round round;
        round.LegCount = wanted >= LargeJet ? longRounds[random.Below(5)] : shortRounds[random.Below(6)];
        round.Stops[static_cast<std::size_t>(round.LegCount - 1)] = *start;
        const bool filled = round.LegCount == 3 ? FillTriangle(round, wanted) : FillHubRound(round, wanted);
        if (!filled) continue;
        MeasureLegs(round);
        return round;
    }
    return std::nullopt;
}

Round RoundDrawer::OutAndBack(int home, int away) const {
    Round round;
    round.LegCount = 2;
    round.Stops[0] = away;
    round.Stops[1] = home;
    MeasureLegs(round);
    return round;
}

bool FliesEast(const Airport& from, const Airport& to) {
    // Whole minutes, as the planner takes them.
    const int east = to.Longitude / 100 - from.Longitude / 100;
    if (east == 0) return from.Latitude / 6000 <= to.Latitude / 6000;
    constexpr int halfTurn = 180 * 60;
    return (east > 0 && east < halfTurn) || east < -halfTurn;
}

}  // namespace orlo::world
