#include "FlightWriter.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <unordered_map>

#include "Random.h"
#include "Rounds.h"
#include "Rules.h"

namespace orlo::world {

namespace {

constexpr int Day = 24 * 60, Week = 7 * Day;  // minutes
constexpr int UnknownStop = -1;               // an airport that no scenery has

// Chooses a variant for a class and a country: of an airline at home there, if there is one.
class Hangar {
  public:
    explicit Hangar(const Fleet& fleet) {
        for (std::size_t i = 0; i < fleet.Variants.size(); ++i) {
            const Variant& variant = fleet.Variants[i];
            const AircraftType& type = TypeOf(variant);
            // Floats land where nothing else of their class does.
            if (std::string_view(PerformanceOf(type).RunwayTypes).substr(0, 5) == "WATER") continue;
            all[type.TypeClass].push_back(i);
            if (variant.AirlineIndex < 0) continue;
            home[type.TypeClass][AirlineOf(fleet, variant).Country].push_back(i);
        }
    }

    bool Has(AircraftClass wanted) const { return !all[wanted].empty(); }

    std::size_t Choose(AircraftClass wanted, const std::string& country, Random& random) const {
        const auto found = home[wanted].find(country);
        if (found != home[wanted].end() && random.Percent(75)) return random.Pick(found->second);
        return random.Pick(all[wanted]);
    }

  private:
    std::vector<std::size_t> all[ClassCount];
    std::unordered_map<std::string, std::vector<std::size_t>> home[ClassCount];  // by country
};

// When a flight departs and arrives, in minutes from the start of its period.
struct Timetable {
    int PeriodHours = 24;  // 0 for a week
    std::array<int, MostLegs> Departures{}, Arrivals{};
};

// What is odd about a flight.
enum class Oddity { None, UnknownAirport, TooFar, TooHigh, StrangeTailNumber };

class FlightWriter {
  public:
    FlightWriter(TextFile& file_, const std::vector<Airport>& airports_, const Fleet& fleet_,
                 std::uint64_t seed)
        : file(file_),
          airports(airports_),
          fleet(fleet_),
          random(seed, Random::Stream::Plan),
          hangar(fleet_),
          drawer(airports_, random) {}

    void Write(int index) {
        WriteComment(index);
        const Oddity oddity = OddityOf(index);
        AircraftClass wanted = oddity == Oddity::TooFar ? HugeJet : DrawClass();
        Round round = oddity == Oddity::UnknownAirport ? RoundToNowhere()
                      : oddity == Oddity::TooFar       ? FarthestRound()
                                                       : DrawRound(wanted);
        const Airport& home = At(round.Stops[static_cast<std::size_t>(round.LegCount - 1)]);
        const std::size_t aircraft = ChooseAircraft(wanted, home.Country);
        const Variant& variant = fleet.Variants[aircraft];
        const bool visual = wanted == MicroProp || (wanted == MidProp && random.Percent(50));

        file.Put("AC#").PutNumber(static_cast<int>(aircraft) + 1).Put(',');
        PutTailNumber(variant, home, oddity);
        file.Put(',').PutNumber(random.Between(1, 99)).Put("%,");
        const Timetable times = DrawTimes(round, PerformanceOf(TypeOf(variant)).CruiseSpeed);
        PutPeriod(times.PeriodHours);
        file.Put(visual ? ",VFR" : ",IFR");
        for (int leg = 0; leg < round.LegCount; ++leg) PutLeg(round, times, leg, visual, variant, oddity);
        file.Line(index % 700 == 350 ? " ; charter" : "");
    }

  private:
    const Airport& At(int stop) const {
        return airports[static_cast<std::size_t>(stop == UnknownStop ? 0 : stop)];
    }

    void WriteComment(int index) {
        if (index % 500 != 0) return;
        file.Put(index % 1000 == 0 ? "; " : "// ").Put("flights from number ").PutNumber(index + 1).EndLine();
        if (index != 500) return;
        file.Put("AC#1,SMP-0001,50%,24Hr,IFR,10:00:00,11:00:00,200,F,0001,KSEA");
        file.Line(" // one leg alone is no flight");
    }

    static Oddity OddityOf(int index) {
        if (index % 100 == 60) return Oddity::StrangeTailNumber;
        if (index % 200 != 199) return Oddity::None;
        static const Oddity misfits[] = {Oddity::UnknownAirport, Oddity::TooFar, Oddity::TooHigh};
        return misfits[index / 200 % 3];
    }

    AircraftClass DrawClass() {
        static constexpr int weights[ClassCount] = {5, 5, 15, 2, 46, 15, 12};
        int draw = random.Between(0, 99);
        int wanted = 0;
        while (draw >= weights[wanted]) draw -= weights[wanted++];
        return static_cast<AircraftClass>(wanted);
    }

    // A round for the class, or else for another one, which then becomes the wanted class.
    Round DrawRound(AircraftClass& wanted) {
        static constexpr AircraftClass order[] = {SmallJet, LargeJet, HugeJet, LargeProp, MidProp, MicroProp};
        if (hangar.Has(wanted)) {
            if (const auto round = drawer.Draw(wanted)) return *round;
        }
        for (const AircraftClass other : order) {
            if (!hangar.Has(other)) continue;
            wanted = other;
            if (const auto round = drawer.Draw(other)) return *round;
        }
        return drawer.OutAndBack(0, 1);
    }

    Round RoundToNowhere() {
        Round round;
        round.LegCount = 2;
        round.Stops[0] = UnknownStop;
        round.Stops[1] = random.Between(0, static_cast<int>(airports.size()) - 1);
        return round;
    }

    // Between the two airports of the first sixty that lie farthest apart: no aircraft reaches that far.
    Round FarthestRound() const {
        int best[2] = {0, 1};
        const int count = std::min(static_cast<int>(airports.size()), 60);
        for (int from = 0; from < count; ++from) {
            for (int to = from + 1; to < count; ++to) {
                if (SquaredChord(At(from).Position, At(to).Position) <=
                    SquaredChord(At(best[0]).Position, At(best[1]).Position))
                    continue;
                best[0] = from;
                best[1] = to;
            }
        }
        return drawer.OutAndBack(best[0], best[1]);
    }

    std::size_t ChooseAircraft(AircraftClass wanted, const std::string& country) {
        if (hangar.Has(wanted)) return hangar.Choose(wanted, country, random);
        return random.Below(static_cast<std::uint32_t>(fleet.Variants.size()));
    }

    void PutTailNumber(const Variant& variant, const Airport& home, Oddity oddity) {
        if (oddity == Oddity::StrangeTailNumber)
            file.Put("\xC4\xD6-");  // letters that need more than seven bits
        const std::string& country =
            variant.AirlineIndex < 0 ? home.Country : AirlineOf(fleet, variant).Country;
        file.Put(
            DrawTailNumber(random, oddity == Oddity::StrangeTailNumber ? "!!!!" : TailPatternOf(country)));
    }

    Timetable DrawTimes(const Round& round, int speed) {
        const auto legs = static_cast<std::size_t>(round.LegCount);
        std::array<int, MostLegs> flying{}, ground{};
        int busy = 0;
        for (std::size_t i = 0; i < legs; ++i) {
            // A leg of unknown length takes a quarter of an hour.
            flying[i] = round.Distances[i] < 1
                            ? 15
                            : static_cast<int>(std::lrint(double(round.Distances[i]) / speed * 60));
            ground[i] = random.Between(9, 24) * 5;
            busy += flying[i] + ground[i];
        }
        Timetable times;
        times.PeriodHours = ChoosePeriod(busy);
        const int period = times.PeriodHours == 0 ? Week : times.PeriodHours * 60;
        if (times.PeriodHours == 0) busy += Stretch(ground, legs, std::max(0, Week - busy));
        int clock = random.Between(0, std::max(0, period - busy) / 5) * 5;
        for (std::size_t i = 0; i < legs; ++i) {
            times.Departures[i] = clock;
            times.Arrivals[i] = clock + flying[i];
            clock = times.Arrivals[i] + ground[i];
        }
        return times;
    }

    // 0 for a week, which is also for what a day does not hold.
    int ChoosePeriod(int busy) {
        static constexpr int hours[] = {4, 6, 8, 12, 24};
        const bool weekly = random.Percent(45), tight = random.Percent(30);
        if (weekly || busy > Day) return 0;
        if (!tight) return 24;
        return *std::find_if(std::begin(hours), std::end(hours), [&](int h) { return h * 60 >= busy; });
    }

    // Lengthens the stops of a weekly round by up to most of a day each; gives the minutes added.
    int Stretch(std::array<int, MostLegs>& ground, std::size_t legs, int room) {
        int added = 0;
        for (std::size_t i = 0; i < legs; ++i) {
            const int most = std::min(18 * 60, room / static_cast<int>(legs));
            const int more = random.Between(0, most / 5) * 5;
            ground[i] += more;
            added += more;
        }
        return added;
    }

    void PutPeriod(int hours) {
        if (hours == 0) {
            file.Put("WEEK");
        } else {
            file.PutNumber(hours).Put("Hr");
        }
    }

    void PutTime(int minutes, bool week) {
        // In a world of few airports, a slow aircraft may need more than the week for its round.
        if (week) file.PutNumber(minutes / Day % 7).Put('/');
        file.PutNumber(minutes % Day / 60, 2).Put(':').PutNumber(minutes % 60, 2).Put(":00");
    }

    void PutLeg(const Round& round, const Timetable& times, int leg, bool visual, const Variant& variant,
                Oddity oddity) {
        const auto i = static_cast<std::size_t>(leg);
        const int from = round.Stops[static_cast<std::size_t>(leg == 0 ? round.LegCount - 1 : leg - 1)];
        const int to = round.Stops[i];
        const bool week = times.PeriodHours == 0;
        file.Put(',');
        PutTime(times.Departures[i], week);
        file.Put(random.Percent(2) ? ",@" : ",");
        PutTime(times.Arrivals[i], week);
        const bool east = FliesEast(At(from), At(to));
        const int highest = PerformanceOf(TypeOf(variant)).MaxLevel;
        const int level =
            oddity == Oddity::TooHigh ? 600 : DrawLevel(visual ? -1 : round.Distances[i], east, highest);
        file.Put(',')
            .PutNumber(level, 3)
            .Put(visual ? ",R," : ",F,")
            .PutNumber(random.Between(1, 9999), 4)
            .Put(',');
        file.Put(to == UnknownStop ? std::string_view("ZZZZ") : At(to).Code);
    }

    // A level from the grid of the flight-level rules, at most `highest` where the grid allows it.
    int DrawLevel(int distance, bool east, int highest) {
        const int course = east ? 90 : 270;
        for (const LevelRule& rule : LevelRules) {
            if (distance < rule.DistanceFrom || distance > rule.DistanceTo) continue;
            if (course < rule.CourseFrom || course > rule.CourseTo) continue;
            const int top = std::max(rule.LevelFrom, std::min(rule.LevelTo, highest));
            return rule.LevelFrom +
                   random.Between(0, (top - rule.LevelFrom) / rule.LevelStep) * rule.LevelStep;
        }
        return 100;
    }

    TextFile& file;
    const std::vector<Airport>& airports;
    const Fleet& fleet;
    Random random;
    Hangar hangar;
    RoundDrawer drawer;
};

}  // namespace

void WriteFlights(TextFile& file, const std::vector<Airport>& airports, const Fleet& fleet, int count,
                  std::uint64_t seed) {
    FlightWriter writer(file, airports, fleet, seed);
    for (int i = 0; i < count; ++i) writer.Write(i);
}

}  // namespace orlo::world
